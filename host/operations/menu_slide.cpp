#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "host/samples.h"
#include "templates/menu_slide.h"

namespace orreryui::host {

using namespace menu_slide;

namespace {

constexpr int kDialog = kTemplate.number;

}  // namespace

Operation MenuBarSlideSet() {
  Operation operation;
  operation.name = "OnDlgMenuBarSlideSet";
  operation.purpose = "Choose the menus that a slide show goes through";
  operation.arguments = {
      {"MENU-FOLDER", "folder above the menu files, with its separator", kMenuFolder},
      {"DISPLAY", "\"AUTO\" or \"MANUAL\"", "AUTO"},
      {"INTERVAL", "seconds between two slides", "5"},
  };
  operation.fields = {
      {"text menu 1", "1: it takes part, 0: it doesn't"},
      {"text menu 2", "as above"},
      {"text menu 3", "as above"},
      {"text menu 4", "as above"},
      {"text menu 5", "as above"},
      {"picture menu 1", "as above"},
      {"picture menu 2", "as above"},
      {"picture menu 3", "as above"},
      {"all", "1: all were chosen at once"},
      {"any", "1: at least one takes part, -1: none does"},
      {"interval", "seconds between two slides", "INTERVAL"},
      {"display", "of the slides", "DISPLAY"},
  };
  operation.steps = {{kDialog, &Hand::TakePicture}, {kDialog, [](Hand& hand) {
                                                       hand.Click(kFirstMenu + 1);
                                                       hand.Click(kFirstMenu + 5);
                                                       hand.Click(kManual);
                                                       hand.Click(kLonger);
                                                       hand.TakePicture();
                                                       hand.Click(IDOK);
                                                     }}};
  operation.expected_result = "0|1|0|0|0|1|0|0|0|1|6|MANUAL";
  return Describe(&OnDlgMenuBarSlideSet, operation);
}

}  // namespace orreryui::host
