#include "host/visit.h"

namespace orreryui::host {

Visit VisitMapPalleteSet() {
  constexpr int kDialog = 177;
  constexpr int kNames = 1029;
  constexpr int kCheck = 1122;
  constexpr int kOk = 1;
  constexpr int kForColourBlindness = 2;
  constexpr int kSpring = 5;
  constexpr int kNew = 6;
  return {"OnMapPalleteSet",
          {{kDialog, &Hand::TakePicture},
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
           {kDialog, [](Hand& hand) { hand.Click(kOk); }}},
          "2|204|222|234|98|182|240|255|255|255|"};
}

}  // namespace orreryui::host
