#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "host/samples.h"
#include "templates/legend.h"

namespace orreryui::host {

using namespace legend;

namespace {

constexpr int kDialog = kTemplate.number;

}  // namespace

Operation LegendElevetion() {
  Operation operation;
  operation.name = "OnLegendElevetion";
  operation.purpose = "Show the colours of the elevations";
  operation.arguments = {
      {"PALETTE", "number of the palette, from 0", "0"},
      {"PALETTE-FOLDER", "folder of PLTTFILE.DAT, with its separator", kPaletteFolder},
      {"LAKE", "colour of lakes: red + 256 * green + 65536 * blue", "15775330"},
  };
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog, [](Hand& hand) { hand.Click(IDOK); }}};
  return Describe(&OnLegendElevetion, operation);
}

}  // namespace orreryui::host
