#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "host/samples.h"
#include "templates/album_update.h"
#include "templates/memo.h"

namespace orreryui::host {

using namespace album_update;

namespace {

constexpr int kDialog = kTemplate.number;
constexpr int kMemoDialog = memo::kTemplate.number;

bool IsCoordinate(const std::string& word) {
  return !word.empty() && word.find_first_not_of("0123456789.") == std::string::npos;
}

// Place, latitude, longitude and item, a blank behind each. A place and an item may hold blanks
// themselves: the first two neighbouring numbers tell them apart.
std::vector<std::string> CutPoint(const std::string& text) {
  for (std::size_t blank = text.find(' '); blank != std::string::npos;
       blank = text.find(' ', blank + 1)) {
    const std::size_t second = text.find(' ', blank + 1);
    const std::size_t third = second == std::string::npos ? second : text.find(' ', second + 1);
    if (third == std::string::npos || !text.ends_with(' ') || third + 1 == text.size()) return {};
    const std::string latitude = text.substr(blank + 1, second - blank - 1);
    const std::string longitude = text.substr(second + 1, third - second - 1);
    if (!IsCoordinate(latitude) || !IsCoordinate(longitude)) continue;
    const std::string item = text.substr(third + 1, text.size() - third - 2);
    return {text.substr(0, blank), latitude, longitude, item};
  }
  return {};
}

}  // namespace

Operation AlbumUpdate() {
  Operation operation;
  operation.name = "OnAlbumUpdate";
  operation.purpose = "Look at an album and change it";
  operation.arguments = {
      {"CODE", "comes back, as long as the update goes on", "1"},
      {"STATE", "\"new\" makes the album file, any other word reads it", "old"},
      {"ALBUM", "path of the album file", kAlbumFolder + "kamakura.alb"},
      {"PLACE", "name of the point", "鎌倉駅"},
      {"ITEM", "what the point is", "散歩の起点"},
      {"LONGITUDE", "longitude of the point", kStartLongitude},
      {"LATITUDE", "latitude of the point", kStartLatitude},
      {"EDITOR", "command of the text editor", "xdg-open"},
  };
  operation.fields = {
      {"code", "as it was passed in, or 0"},
      {"end", "1: store the point, 2: go on, 3: delete the album"},
      {"place", "name of the point", "PLACE"},
      {"latitude", "of the point", "LATITUDE"},
      {"longitude", "of the point", "LONGITUDE"},
      {"item", "what the point is", "ITEM"},
  };
  operation.last_fields = 4;
  operation.cut_last = &CutPoint;
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog,
                      [](Hand& hand) {
                        hand.PickFromList(kData, 3);
                        hand.TakePicture();
                        hand.Click(kPreviewText);
                      }},
                     {kMemoDialog,
                      [](Hand& hand) {
                        hand.TakePicture();
                        hand.Click(IDOK);
                      }},
                     {kDialog, [](Hand& hand) {
                        hand.Type(kItem, "鎌倉を歩く");
                        hand.Click(IDOK);
                      }}};
  operation.expected_result = "1|1|鎌倉駅 35.3190 139.5503 鎌倉を歩く ";
  return Describe(&OnAlbumUpdate, operation);
}

}  // namespace orreryui::host
