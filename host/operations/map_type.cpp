#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "host/samples.h"
#include "templates/map_type.h"
#include "templates/region.h"

namespace orreryui::host {

using namespace map_type;

namespace {

constexpr int kDialog = kTemplate.number;
constexpr int kRegionDialog = region::kTemplate.number;
constexpr int kNagano = 20;  // its number of JIS X 0401

// The whole of Japan alone, or one prefecture.
std::string RegionOf(int chosen) {
  std::string region;
  for (int place = 0; place <= 47; ++place) region += place == chosen ? "1|" : "0|";
  return region + "1";
}

}  // namespace

Operation MapTypeSet() {
  Operation operation;
  operation.name = "OnMapTypeSet";
  operation.purpose = "Choose the kind of the map and its colouring";
  operation.arguments = {
      {"PALETTE", "the palette's line in PLTTFILE.DAT, from 0", "0"},
      {"KIND", "10 * projection of the archipelago (0 Sanson, 2 Albers) + kind of the map", "21"},
      {"FILL", "10000 * projection of the map by prefecture + 1 for a tint map", "10001"},
      {"COAST", "10000 * coastline by prefecture + 100 * topographic coastline + method", "50102"},
      {"COAST-ON-TINT", "1 if a tint map has a coastline colour too", "1"},
      {"PALETTE-FOLDER", "folder of PLTTFILE.DAT, with its separator", kPaletteFolder},
      {"REGION", "the whole and the 47 prefectures, 1 for those chosen, and a tail", RegionOf(0)},
  };
  operation.fields = {
      {"changed", "1: the map is to be drawn anew, -1: it isn't"},
      {"palette", "the palette's line in PLTTFILE.DAT, from 0", "PALETTE"},
      {"kind", "1: topographic 1:200000, 2: archipelago, 3: by prefecture", "KIND", 1},
      {"tint", "0: blank map, 1: hypsometric tint map", "FILL", 1},
      {"method", "index of the fill method", "COAST", 1},
      {"unused", "always 0"},
      {"prefecture projection", "0: Sanson, 1: equirectangular", "FILL", 10000},
      {"topographic coastline", "index of the coastline colour of kind 1", "COAST", 100},
      {"coastline by prefecture", "index of the coastline colour of kind 3", "COAST", 10000},
      {"archipelago projection", "0: Sanson, 2: Albers", "KIND", 10},
      {"region", "the whole and the 47 prefectures, 1 for those chosen, and a tail", "REGION"},
  };
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog,
                      [](Hand& hand) {
                        hand.Click(kBlank);
                        hand.TakePicture();
                      }},
                     {kDialog,
                      [](Hand& hand) {
                        hand.Click(kTint);
                        hand.PickFromCombo(kMethod, 1);
                        hand.Click(kPrefectures);
                      }},
                     {kRegionDialog, &Hand::TakePicture},
                     {kRegionDialog,
                      [](Hand& hand) {
                        hand.Click(region::kFirstPrefecture + kNagano - 1);
                        hand.TakePicture();
                      }},
                     {kRegionDialog, [](Hand& hand) { hand.Click(IDOK); }}};
  operation.expected_result = "1|0|3|1|1|0|1|1|5|2|" + RegionOf(kNagano);
  return Describe(&OnMapTypeSet, operation);
}

}  // namespace orreryui::host
