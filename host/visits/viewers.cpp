#include "host/visit.h"

namespace orreryui::host {

Visit VisitTextDisplay() {
  constexpr int kDialog = 152;
  constexpr int kOk = 1;
  return {"OnTextDisplayDaialog",
          {{kDialog, &Hand::TakePicture}, {kDialog, [](Hand& hand) { hand.Click(kOk); }}},
          ""};
}

Visit VisitMemoDisplay() {
  constexpr int kDialog = 133;
  constexpr int kOk = 1;
  return {"OnMemoDisplay",
          {{kDialog, &Hand::TakePicture}, {kDialog, [](Hand& hand) { hand.Click(kOk); }}},
          ""};
}

}  // namespace orreryui::host
