#include "host/visit.h"

namespace orreryui::host {

namespace {

// Nagano alone.
std::string ExpectedRegion() {
  std::string region;
  for (int slot = 0; slot < 48; ++slot) region += slot == 20 ? "1|" : "0|";
  return region + "1";
}

}  // namespace

Visit VisitMapTypeSet() {
  constexpr int kDialog = 159;
  constexpr int kBlank = 1112;
  constexpr int kTint = 1113;
  constexpr int kMethod = 1117;
  constexpr int kPrefectures = 1006;
  constexpr int kRegionDialog = 179;
  constexpr int kNagano = 1504;
  constexpr int kOk = 1;
  return {"OnMapTypeSet",
          {{kDialog, &Hand::TakePicture},
           {kDialog,
            [](Hand& hand) {
              hand.Click(kBlank);
              hand.TakePicture();
            }},
           {kDialog,
            [](Hand& hand) {
              hand.Click(kTint);
              hand.PickFromCombo(kMethod, 1);
              hand.Click(kPrefectures);
            }},
           {kRegionDialog, &Hand::TakePicture},
           {kRegionDialog,
            [](Hand& hand) {
              hand.Click(kNagano);
              hand.TakePicture();
            }},
           {kRegionDialog, [](Hand& hand) { hand.Click(kOk); }}},
          "1|0|3|1|1|0|1|1|5|2|" + ExpectedRegion()};
}

}  // namespace orreryui::host
