#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "templates/slide.h"

namespace orreryui::host {

using namespace slide;

namespace {

constexpr int kDialog = kTemplate.number;

}  // namespace

Operation SlideSet() {
  Operation operation;
  operation.name = "OnSlideSet";
  operation.purpose = "Set how a slide show of the registered points runs";
  operation.arguments = {
      {"CONTENT", "1 texts, 2 pictures, 3 both", "3"},
      {"INTERVAL", "seconds between two slides", "5"},
      {"MAP-SIZE", "of the position map: 1 large, 2 small", "2"},
      {"MEMO", "\"ON\" if a picture shows with its memo, else \"OFF\"", "ON"},
      {"DISPLAY", "\"AUTO\" or \"MANUAL\"", "AUTO"},
      {"REMAINING", "\"on\" if the seconds that remain are shown, else \"off\"", "off"},
      {"POSITION-MAP", "\"on\" if the map of the points is shown, else \"off\"", "on"},
      {"JPEG", "\"off\" leaves out the JPG pictures, else \"on\"", "on"},
  };
  operation.fields = {
      {"content", "1: texts, 2: pictures, 3: both", "CONTENT"},
      {"interval", "seconds between two slides", "INTERVAL"},
      {"map size", "of the position map: 1 large, 2 small", "MAP-SIZE"},
      {"memo", "whether a picture shows with its memo", "MEMO"},
      {"display", "of the slides", "DISPLAY"},
      {"remaining", "whether the seconds that remain are shown", "REMAINING"},
      {"position map", "whether the map of the points is shown", "POSITION-MAP"},
      {"JPG", "off: JPG pictures are left out", "JPEG"},
  };
  operation.steps = {{kDialog, &Hand::TakePicture}, {kDialog, [](Hand& hand) {
                                                       hand.Click(kPicture);
                                                       hand.Click(kLonger);
                                                       hand.Click(kRemaining);
                                                       hand.Click(kWithoutJpeg);
                                                       hand.Click(kLarge);
                                                       hand.TakePicture();
                                                       hand.Click(IDOK);
                                                     }}};
  operation.expected_result = "2|6|1|ON|AUTO|on|on|off";
  return Describe(&OnSlideSet, operation);
}

}  // namespace orreryui::host
