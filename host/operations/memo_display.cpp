#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "templates/memo.h"

namespace orreryui::host {

using namespace memo;

namespace {

constexpr int kDialog = kTemplate.number;

}  // namespace

Operation MemoDisplay() {
  Operation operation;
  operation.name = "OnMemoDisplay";
  operation.purpose = "Show the memo of a text file";
  operation.arguments = {
      {"MODE", "1: the memo; 2: the first 16 lines; any other number: TEXT", "1"},
      {"LEFT", "left edge of the window in pixels, or 0", "0"},
      {"FILE", "path of the text file", std::string(kDataFolder) + "/kamakura.txt"},
      {"TEXT", "the text to show if MODE is neither 1 nor 2", ""},
  };
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog, [](Hand& hand) { hand.Click(IDOK); }}};
  return Describe(&OnMemoDisplay, operation);
}

}  // namespace orreryui::host
