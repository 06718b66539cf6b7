#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "host/samples.h"
#include "templates/album_regist.h"

namespace orreryui::host {

using namespace album_regist;

namespace {

constexpr int kDialog = kTemplate.number;

}  // namespace

Operation DllAlbumRegist() {
  Operation operation;
  operation.name = "OnDLLAlbumRegist";
  operation.purpose = "Make an album of a point on the map";
  operation.arguments = {
      {"CODE", "comes back unchanged", "1"},
      {"LONGITUDE", "longitude of the point", kStartLongitude},
      {"LATITUDE", "latitude of the point", kStartLatitude},
      {"NEW-ALBUM", "path of the album file that is made", kAlbumFolder + "album2.alb"},
      {"NUMBER", "number of the album, to be shown", "2"},
  };
  operation.fields = {
      {"code", "as it was passed in", "CODE"},  {"longitude", "of the point", "LONGITUDE"},
      {"latitude", "of the point", "LATITUDE"}, {"place", "name of the point", "PLACE"},
      {"item", "what the point is", "ITEM"},
  };
  operation.result_unless_ok = "4||||";
  operation.steps = {{kDialog, &Hand::TakePicture},
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
                     {kDialog, [](Hand& hand) { hand.Click(IDOK); }}};
  operation.expected_result = "1|139.5357|35.3168|鎌倉駅|散歩の起点";
  return Describe(&OnDLLAlbumRegist, operation);
}

}  // namespace orreryui::host
