#include "host/visit.h"

namespace orreryui::host {

Visit VisitAlbumUpdate() {
  constexpr int kDialog = 147;
  constexpr int kItem = 130;
  constexpr int kData = 128;
  constexpr int kPreviewText = 114;
  constexpr int kMemoDialog = 133;
  constexpr int kOk = 1;
  return {"OnAlbumUpdate",
          {{kDialog, &Hand::TakePicture},
           {kDialog,
            [](Hand& hand) {
              hand.PickFromList(kData, 3);
              hand.TakePicture();
              hand.Click(kPreviewText);
            }},
           {kMemoDialog,
            [](Hand& hand) {
              hand.TakePicture();
              hand.Click(kOk);
            }},
           {kDialog,
            [](Hand& hand) {
              hand.Type(kItem, "鎌倉を歩く");
              hand.Click(kOk);
            }}},
          "1|1|鎌倉駅 35.3190 139.5503 鎌倉を歩く "};
}

}  // namespace orreryui::host
