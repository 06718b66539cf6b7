#include "host/visit.h"

namespace orreryui::host {

Visit VisitDllAlbumRegist() {
  constexpr int kDialog = 148;
  constexpr int kPlace = 101;
  constexpr int kItem = 104;
  constexpr int kLatitude = 105;
  constexpr int kLongitude = 129;
  constexpr int kMemo1 = 106;
  constexpr int kMemo2 = 107;
  constexpr int kTextFile = 108;
  constexpr int kPictureFile = 102;
  constexpr int kAddData = 117;
  constexpr int kOk = 1;
  return {"OnDLLAlbumRegist",
          {{kDialog, &Hand::TakePicture},
           {kDialog,
            [](Hand& hand) {
              hand.Type(kPlace, "鎌倉駅");
              hand.Type(kItem, "散歩の起点");
              hand.Type(kLatitude, "35.3168");
              hand.Type(kLongitude, "139.5357");
              hand.Type(kMemo1, "高徳院");
              hand.Type(kMemo2, "鎌倉大仏");
              hand.Type(kTextFile, "album\\daibutsu.txt");
              hand.Type(kPictureFile, "album\\daibutsu.jpg");
              hand.TakePicture();
              hand.Click(kAddData);
            }},
           {kDialog,
            [](Hand& hand) {
              hand.Type(kMemo1, "由比ヶ浜");
              hand.Type(kPictureFile, "album\\yuigahama.jpg");
              hand.Click(kAddData);
              hand.TakePicture();
            }},
           {kDialog, [](Hand& hand) { hand.Click(kOk); }}},
          "1|139.5357|35.3168|鎌倉駅|散歩の起点"};
}

}  // namespace orreryui::host
