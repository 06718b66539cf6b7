// Any bytes are a palette list and a palette file. A list falls into its entries and what stands
// behind them, and no line of it is too long.
#include "appearance/palette_file.h"
#include "appearance/palette_list.h"
#include "fuzz/input.h"
#include "fuzz/one_file.h"

namespace {

void CheckPalette() {
  const auto points = orreryui::ReadPalette("Orbis1.plt").value();
  Require(points.size() <= orreryui::kMostPalettePoints);
  for (const auto& point : points) {
    Require(point.level >= 0 && point.level < orreryui::kLevels && point.colour <= 0xFFFFFF);
  }
  const auto colours = orreryui::InterpolatedColours(points);
  if (points.size() > 1) {
    Require(colours[static_cast<std::size_t>(points.back().level)] == points.back().colour);
  }
  for (const auto colour : colours) Require(colour <= 0xFFFFFF);
}

void CheckList(std::string_view input) {
  const auto list = orreryui::ReadPaletteList("");
  Require(list.entries.size() <= orreryui::kMostPalettes && input.ends_with(list.rest));
  for (const auto& entry : list.entries) {
    Require(entry.name.GetLength() + entry.file.GetLength() <= 98);
  }
}

}  // namespace

void Check(std::string_view input) {
  orreryui::OneFile files(input);
  const orreryui::ScopedFileSystem scope(files);
  CheckPalette();
  CheckList(input);
}
