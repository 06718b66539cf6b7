#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "host/samples.h"
#include "templates/route_select.h"
#include "templates/route_update.h"

namespace orreryui::host {

using namespace route_select;

namespace {

constexpr int kDialog = kTemplate.number;
constexpr int kUpdateDialog = route_update::kTemplate.number;

}  // namespace

Operation RouteInformation() {
  Operation operation;
  operation.name = "OnRouteInformation";
  operation.purpose = "Choose a stored route or area map";
  operation.arguments = {
      {"MAP-KIND", "0 the route maps, 1 the area maps", "0"},
      {"DISPLAY", "\"AUTO\" or \"MANUAL\"", "AUTO"},
      {"EDITOR", "command of the text editor", "xdg-open"},
      {"MAP-FOLDER", "folder of the maps, with its separator", kMapFolder},
  };
  operation.fields = {
      {"number", "of the map's entry, from 0; -1 if none was chosen"},
      {"name", "of the map"},
      {"member file", "path of the map's points", "LIST-MODE"},
      {"display", "of the points", "DISPLAY"},
  };
  operation.steps = {{kDialog,
                      [](Hand& hand) {
                        hand.TakePicture();
                        hand.PickFromList(kMaps, 0);
                        hand.PickFromList(kPoints, 2);
                        hand.TakePicture();
                        hand.Click(kUpdate);
                      }},
                     {kUpdateDialog,
                      [](Hand& hand) {
                        hand.PickFromList(route_update::kMaps, 0);
                        hand.Type(route_update::kName, "北鎌倉の寺と八幡宮");
                        hand.Click(route_update::kRename);
                        hand.TakePicture();
                        hand.Click(IDOK);
                      }},
                     {kDialog, [](Hand& hand) {
                        hand.PickFromList(kMaps, 0);
                        hand.Click(kManual);
                        hand.TakePicture();
                        hand.Click(IDOK);
                      }}};
  operation.expected_result = "0|北鎌倉の寺と八幡宮|" + kMapFolder + "G04C2513.5R|MANUAL";
  return Describe(&OnRouteInformation, operation);
}

}  // namespace orreryui::host
