#include "host/visit.h"

namespace orreryui::host {

Visit VisitLegendElevetion() {
  constexpr int kDialog = 158;
  constexpr int kOk = 1;
  return {"OnLegendElevetion",
          {{kDialog, &Hand::TakePicture}, {kDialog, [](Hand& hand) { hand.Click(kOk); }}},
          ""};
}

}  // namespace orreryui::host
