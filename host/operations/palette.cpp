#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "host/samples.h"
#include "templates/palette.h"

namespace orreryui::host {

using namespace palette;

namespace {

constexpr int kDialog = kTemplate.number;

// Rows of the sample palettes.
constexpr int kForColourBlindness = 2;
constexpr int kSpring = 5;
constexpr int kNew = 6;

}  // namespace

Operation MapPalleteSet() {
  Operation operation;
  operation.name = "OnMapPalleteSet";
  operation.purpose = "Choose a palette and edit the palettes";
  operation.arguments = {
      {"PALETTE", "number of the palette chosen so far, from 0", "0"},
      {"EDITOR", "command of the text editor", "xdg-open"},
      {"PALETTE-FOLDER", "folder of PLTTFILE.DAT, with its separator", kPaletteFolder},
      {"SEA", "not used", "0"},
      {"LAKE", "colour of lakes: red + 256 * green + 65536 * blue", "15775330"},
      {"BACKGROUND", "colour of the map's background, in the same way", "16777215"},
  };
  operation.fields = {
      {"selected", "number of the chosen palette", "PALETTE"},
      {"sea, red", "the sea of the palette"},
      {"sea, green", "the sea of the palette"},
      {"sea, blue", "the sea of the palette"},
      {"lake, red", "lakes", "LAKE", 1},
      {"lake, green", "lakes", "LAKE", 256},
      {"lake, blue", "lakes", "LAKE", 65536},
      {"background, red", "the map's background", "BACKGROUND", 1},
      {"background, green", "the map's background", "BACKGROUND", 256},
      {"background, blue", "the map's background", "BACKGROUND", 65536},
  };
  operation.ends_in_number = true;
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog,
                      [](Hand& hand) {
                        hand.PickFromList(kNames, kNew);
                        hand.TakePicture();
                      }},
                     {kDialog,
                      [](Hand& hand) {
                        hand.PickFromList(kNames, kSpring);
                        hand.Click(kCheck);
                        hand.TakePicture();
                      }},
                     {kDialog,
                      [](Hand& hand) {
                        hand.PickFromList(kNames, kForColourBlindness);
                        hand.TakePicture();
                      }},
                     {kDialog, [](Hand& hand) { hand.Click(IDOK); }}};
  operation.expected_result = "2|204|222|234|98|182|240|255|255|255|";
  return Describe(&OnMapPalleteSet, operation);
}

}  // namespace orreryui::host
