#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "host/samples.h"
#include "templates/album_files.h"
#include "templates/route_regist.h"

namespace orreryui::host {

using namespace album_files;

namespace {

constexpr int kDialog = kTemplate.number;
constexpr int kRegistDialog = route_regist::kTemplate.number;

}  // namespace

Operation RouteRegist() {
  Operation operation;
  operation.name = "OnRouteRegistModule";
  operation.purpose = "Look at a list of points and store it as a map";
  operation.arguments = {
      {"SHAPE", "of an area: 0 a circle, 1 a square", "0"},
      {"SIZE", "of an area: its diameter or side in km", "4"},
      {"MAP-FOLDER", "folder of the maps, with its separator", kMapFolder},
      {"TEXT1", "not used", ""},
      {"TEXT2", "not used", ""},
      {"LIST-MODE", "\"RouteMap\" or \"AreaMap\" for LIST, or the path of a file of points",
       "RouteMap"},
      {"CAPTION1", "first line above the points", "鎌倉を歩く"},
      {"CAPTION2", "second line, above an album", ""},
      {"LONGITUDE", "not used", kStartLongitude},
      {"LATITUDE", "not used", kStartLatitude},
      {"CENTRE-LATITUDE", "of an area", kStartLatitude},
      {"CENTRE-LONGITUDE", "of an area", kStartLongitude},
      {"DISPLAY", "\"AUTO\" or \"MANUAL\", for LIST", "AUTO"},
      {"FILE-DISPLAY", "\"AUTO\" or \"MANUAL\", for a file of points", "AUTO"},
      {"LIST", "a data line for each point, a bar behind each, and 999|", kAlbumPoints},
  };
  operation.fields = {{"display", "of the points", "DISPLAY"}};
  operation.result_unless_ok = "cancel";
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog,
                      [](Hand& hand) {
                        hand.PickFromList(kPoints, 1);
                        hand.Click(kManual);
                        hand.TakePicture();
                        hand.Click(kRegister);
                      }},
                     {kRegistDialog,
                      [](Hand& hand) {
                        hand.TakePicture();
                        hand.Type(route_regist::kName, "八幡宮から海まで");
                        hand.Click(IDOK);
                      }},
                     {kDialog, [](Hand& hand) {
                        hand.TakePicture();
                        hand.Click(kEnd);
                      }}};
  operation.expected_result = "MANUAL";
  return Describe(&OnRouteRegistModule, operation);
}

}  // namespace orreryui::host
