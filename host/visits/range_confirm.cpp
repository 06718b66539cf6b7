#include "host/visit.h"

namespace orreryui::host {

Visit VisitRangeConfirm() {
  constexpr int kDialog = 146;
  constexpr int kEnlarge = 103;
  return {"OnRengeConfirm",
          {{kDialog, &Hand::TakePicture}, {kDialog, [](Hand& hand) { hand.Click(kEnlarge); }}},
          "1"};
}

}  // namespace orreryui::host
