#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "templates/text_view.h"

namespace orreryui::host {

using namespace text_view;

namespace {

constexpr int kDialog = kTemplate.number;

}  // namespace

Operation TextDisplay() {
  Operation operation;
  operation.name = "OnTextDisplayDaialog";
  operation.purpose = "Show the main text of a text file";
  operation.arguments = {
      {"FILE", "path of the text file", std::string(kDataFolder) + "/kamakura.txt"},
      {"TITLE1", "first part of the caption", "鎌倉"},
      {"TITLE2", "second part of the caption", "高徳院の大仏"},
  };
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog, [](Hand& hand) { hand.Click(IDOK); }}};
  return Describe(&OnTextDisplayDaialog, operation);
}

}  // namespace orreryui::host
