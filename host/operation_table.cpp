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
      {"PALETTE", "number of the palette chosen so far, from 0", "0"},
      {"EDITOR", "command of the text editor", "xdg-open"},
      {"PALETTE-FOLDER", "folder of PLTTFILE.DAT, with its separator", PaletteFolder()},
      {"SEA", "not used", "0"},
      {"LAKE", "colour of lakes: red + 256 * green + 65536 * blue", "15775330"},
      {"BACKGROUND", "colour of the map's background, in the same way", "16777215"},
  };
  operation.fields = {
      {"selected", "number of the chosen palette", "PALETTE"},
      {"sea, red", "the sea of the palette"},
      {"sea, green", "the sea of the palette"},
      {"sea, blue", "the sea of the palette"},
      {"lake, red", "lakes", "LAKE", 1},
      {"lake, green", "lakes", "LAKE", 256},
      {"lake, blue", "lakes", "LAKE", 65536},
      {"background, red", "the map's background", "BACKGROUND", 1},
      {"background, green", "the map's background", "BACKGROUND", 256},
      {"background, blue", "the map's background", "BACKGROUND", 65536},
  };
  operation.ends_in_number = true;
  return Describe(&OnMapPalleteSet, operation);
}

Operation LegendElevetion() {
  Operation operation;
  operation.name = "OnLegendElevetion";
  operation.purpose = "Show the colours of the elevations";
  operation.arguments = {
      {"PALETTE", "number of the palette, from 0", "0"},
      {"PALETTE-FOLDER", "folder of PLTTFILE.DAT, with its separator", PaletteFolder()},
      {"LAKE", "colour of lakes: red + 256 * green + 65536 * blue", "15775330"},
  };
  return Describe(&OnLegendElevetion, operation);
}

// Kamakura station.
constexpr char kLongitude[] = "139.5503";
constexpr char kLatitude[] = "35.3190";

Operation DllAlbumRegist() {
  Operation operation;
  operation.name = "OnDLLAlbumRegist";
  operation.purpose = "Make an album of a point on the map";
  operation.arguments = {
      {"CODE", "comes back unchanged", "1"},
      {"LONGITUDE", "longitude of the point", kLongitude},
      {"LATITUDE", "latitude of the point", kLatitude},
      {"NEW-ALBUM", "path of the album file that is made", AlbumFolder() + "album2.alb"},
      {"NUMBER", "number of the album, to be shown", "2"},
  };
  operation.fields = {
      {"code", "as it was passed in", "CODE"},  {"longitude", "of the point", "LONGITUDE"},
      {"latitude", "of the point", "LATITUDE"}, {"place", "name of the point", "PLACE"},
      {"item", "what the point is", "ITEM"},
  };
  operation.result_unless_ok = "4||||";
  return Describe(&OnDLLAlbumRegist, operation);
}

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
      {"LONGITUDE", "longitude of the point", kLongitude},
      {"LATITUDE", "latitude of the point", kLatitude},
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
      {"selected", "index of the chosen entry", "SELECTED"},
      {"common area", "whether the common area is shown as well", "COMMON-AREA"},
      {"data file", "the chosen entry"},
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
  operation.fields = {{"answer", "1: the enlarged map of the range is wanted"}};
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
      {"PALETTE-FOLDER", "folder of PLTTFILE.DAT, with its separator", PaletteFolder()},
      {"REGION", "the whole and the 47 prefectures, 1 for those chosen, and a tail", WholeRegion()},
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
  return Describe(&OnMapTypeSet, operation);
}

}  // namespace

std::string AlbumFolder() { return std::string(kDataFolder) + "/album/"; }

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
