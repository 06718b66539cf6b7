#include "host/visit.h"

namespace orreryui::host {

Visit VisitDataSourceSet() {
  constexpr int kDialog = 134;
  constexpr int kFiles = 135;
  constexpr int kNewFile = 101;
  constexpr int kRegister = 103;
  constexpr int kUseCommonArea = 1020;
  constexpr int kOk = 1;
  return {"OnDataSourceSet",
          {{kDialog, &Hand::TakePicture},
           {kDialog,
            [](Hand& hand) {
              hand.Type(kNewFile, "江の島と湘南海岸");
              hand.Click(kRegister);
              hand.TakePicture();
            }},
           {kDialog,
            [](Hand& hand) {
              hand.PickFromCombo(kFiles, 2);
              hand.Click(kUseCommonArea);
              hand.TakePicture();
            }},
           {kDialog, [](Hand& hand) { hand.Click(kOk); }}},
          "2|off|箱根旧街道"};
}

}  // namespace orreryui::host
