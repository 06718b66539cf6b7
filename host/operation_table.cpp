#include "host/operation_table.h"

#include <orreryui/orreryui.h>

#include <algorithm>

namespace orreryui::host {
namespace {

std::string PaletteFolder() { return std::string(kDataFolder) + "/palettes/"; }

Operation MapPalleteSet() {
  Operation operation;
  operation.name = "OnMapPalleteSet";
  operation.purpose = "Choose a palette and edit the palettes";
  operation.arguments = {
      {"SELECTED", "number of the palette chosen so far, from 0", "0"},
      {"EDITOR", "command of the text editor", "xdg-open"},
      {"FOLDER", "folder of PLTTFILE.DAT, with its separator", PaletteFolder()},
      {"SEA", "not used", "0"},
      {"LAKE", "colour of lakes: red + 256 * green + 65536 * blue", "15775330"},
      {"BACKGROUND", "colour of the map's background, in the same way", "16777215"},
  };
  operation.fields = {
      {"selected", "number of the chosen palette", 0},
      {"sea, red", "the sea of the palette", std::nullopt},
      {"sea, green", "the sea of the palette", std::nullopt},
      {"sea, blue", "the sea of the palette", std::nullopt},
      {"lake, red", "lakes", 4, 1},
      {"lake, green", "lakes", 4, 256},
      {"lake, blue", "lakes", 4, 65536},
      {"background, red", "the map's background", 5, 1},
      {"background, green", "the map's background", 5, 256},
      {"background, blue", "the map's background", 5, 65536},
  };
  operation.palette = {0, 2};
  operation.ends_in_number = true;
  return Describe(&OnMapPalleteSet, operation);
}

Operation LegendElevetion() {
  Operation operation;
  operation.name = "OnLegendElevetion";
  operation.purpose = "Show the colours of the elevations";
  operation.arguments = {
      {"PALETTE", "number of the palette, from 0", "5"},
      {"FOLDER", "folder of PLTTFILE.DAT, with its separator", PaletteFolder()},
      {"LAKE", "colour of lakes: red + 256 * green + 65536 * blue", "15775330"},
  };
  operation.palette = {0, 1};
  return Describe(&OnLegendElevetion, operation);
}

std::string AlbumFolder() { return std::string(kDataFolder) + "/album/"; }

// Kamakura station.
constexpr char kLongitude[] = "139.5503";
constexpr char kLatitude[] = "35.3190";

Operation DllAlbumRegist() {
  Operation operation;
  operation.name = "OnDLLAlbumRegist";
  operation.purpose = "Make an album of a point on the map";
  operation.arguments = {
      {"CODE", "comes back unchanged", "1"},
      {"LONGITUDE", "of the point", kLongitude},
      {"LATITUDE", "of the point", kLatitude},
      {"ALBUM", "path of the album file that is made", AlbumFolder() + "new.alb"},
      {"NUMBER", "number of the album, to be shown", "2"},
  };
  operation.fields = {
      {"code", "as it was passed in", 0},
      {"longitude", "of the point", 1},
      {"latitude", "of the point", 2},
      {"place", "name of the point", std::nullopt},
      {"item", "what the point is", std::nullopt},
  };
  operation.result_unless_ok = "4||||";
  return Describe(&OnDLLAlbumRegist, operation);
}

Operation AlbumUpdate() {
  Operation operation;
  operation.name = "OnAlbumUpdate";
  operation.purpose = "Look at an album and change it";
  operation.arguments = {
      {"CODE", "comes back, as long as the update goes on", "1"},
      {"STATE", "\"new\" makes the album file, any other word reads it", "old"},
      {"ALBUM", "path of the album file", AlbumFolder() + "kamakura.alb"},
      {"PLACE", "name of the point", "鎌倉駅"},
      {"ITEM", "what the point is", "散歩の起点"},
      {"LONGITUDE", "of the point", kLongitude},
      {"LATITUDE", "of the point", kLatitude},
      {"EDITOR", "command of the text editor", "xdg-open"},
  };
  operation.fields = {
      {"code", "as it was passed in, or 0", std::nullopt},
      {"end", "1: store the point, 2: go on, 3: delete the album", std::nullopt},
      {"point", "place, latitude, longitude and item, a blank behind each", std::nullopt},
  };
  return Describe(&OnAlbumUpdate, operation);
}

Operation DataSourceSet() {
  Operation operation;
  operation.name = "OnDataSourceSet";
  operation.purpose = "Choose, add and take off data files";
  operation.arguments = {
      {"SELECTED", "index of the entry chosen so far, 0 for the common area", "0"},
      {"COMMON-AREA", "\"on\" if the common area is shown as well, else \"off\"", "on"},
      {"FOLDER", "folder of BINDER.DAT, with its separator", std::string(kDataFolder) + "/"},
  };
  operation.fields = {
      {"selected", "index of the chosen entry", 0},
      {"common area", "whether the common area is shown as well", 1},
      {"data file", "the chosen entry", std::nullopt},
  };
  return Describe(&OnDataSourceSet, operation);
}

Operation TextDisplay() {
  Operation operation;
  operation.name = "OnTextDisplayDaialog";
  operation.purpose = "Show the main text of a text file";
  operation.arguments = {
      {"FILE", "path of the text file", std::string(kDataFolder) + "/kamakura.txt"},
      {"TITLE1", "first part of the caption", "鎌倉"},
      {"TITLE2", "second part of the caption", "高徳院の大仏"},
  };
  return Describe(&OnTextDisplayDaialog, operation);
}

Operation MemoDisplay() {
  Operation operation;
  operation.name = "OnMemoDisplay";
  operation.purpose = "Show the memo of a text file";
  operation.arguments = {
      {"MODE", "1: the memo; 2: the first 16 lines; any other number: TEXT", "1"},
      {"LEFT", "left edge of the window in pixels, or 0", "0"},
      {"FILE", "path of the text file", std::string(kDataFolder) + "/kamakura.txt"},
      {"TEXT", "the text to show if MODE is neither 1 nor 2", ""},
  };
  return Describe(&OnMemoDisplay, operation);
}

Operation RangeConfirm() {
  Operation operation;
  operation.name = "OnRengeConfirm";
  operation.purpose = "Confirm a range drawn with the mouse";
  // Kamakura, from the Great Buddha to the harbour of Kotsubo.
  operation.arguments = {
      {"WEST", "longitude of the north-west corner", "139.5357"},
      {"NORTH", "latitude of the north-west corner", "35.3167"},
      {"EAST", "longitude of the south-east corner", "139.5581"},
      {"SOUTH", "latitude of the south-east corner", "35.2989"},
  };
  operation.fields = {{"answer", "1: the enlarged map of the range is wanted", std::nullopt}};
  operation.result_unless_ok = "-1";
  return Describe(&OnRengeConfirm, operation);
}

// The whole of Japan alone.
std::string WholeRegion() {
  std::string region = "1|";
  for (int prefecture = 1; prefecture <= 47; ++prefecture) region += "0|";
  return region + "1";
}

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
      {"FOLDER", "folder of PLTTFILE.DAT, with its separator", PaletteFolder()},
      {"REGION", "the whole and the 47 prefectures, 1 for those chosen, and a tail", WholeRegion()},
  };
  operation.fields = {
      {"changed", "1: the map is to be drawn anew, -1: it isn't", std::nullopt},
      {"palette", "the palette's line in PLTTFILE.DAT, from 0", 0},
      {"kind", "1: topographic 1:200000, 2: archipelago, 3: by prefecture", 1, 1},
      {"tint", "0: blank map, 1: hypsometric tint map", 2, 1},
      {"method", "index of the fill method", 3, 1},
      {"unused", "always 0", std::nullopt},
      {"prefecture projection", "0: Sanson, 1: equirectangular", 2, 10000},
      {"topographic coastline", "index of the coastline colour of kind 1", 3, 100},
      {"coastline by prefecture", "index of the coastline colour of kind 3", 3, 10000},
      {"archipelago projection", "0: Sanson, 2: Albers", 1, 10},
      {"region", "the whole and the 47 prefectures, 1 for those chosen, and a tail", 6},
  };
  operation.palette = {0, 5};
  return Describe(&OnMapTypeSet, operation);
}

}  // namespace

const std::vector<Operation>& Operations() {
  static const std::vector<Operation> operations = {
      MapTypeSet(),  MapPalleteSet(), LegendElevetion(), DataSourceSet(), DllAlbumRegist(),
      AlbumUpdate(), TextDisplay(),   MemoDisplay(),     RangeConfirm()};
  return operations;
}

const Operation* FindOperation(const std::string& name) {
  const auto& all = Operations();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const Operation& one) { return one.name == name; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace orreryui::host
