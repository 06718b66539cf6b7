#include "appearance/palette_file.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "frame/line_file.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui {
namespace {

constexpr std::size_t kLineLimit = 99;

// What is written behind the numbers of each row, for human readers.
constexpr std::array<const char*, kRowElevations.size()> kCaptions = {
    "    青（海域）  1:15"_sj,
    "         0m",
    "       100m",
    "       200m",
    "       500m",
    "     1,000m",
    "     1,500m",
    "     2,000m",
    "     2,500m",
    "     3,000m",
    "     4,000m",
};

bool IsAlwaysWritten(std::size_t row) { return row < 2 || row + 1 == kRowElevations.size(); }

int NumberAt(std::string_view line, std::size_t column, std::size_t width) {
  if (column >= line.size()) return 0;
  return std::atoi(std::string(line.substr(column, width)).c_str());
}

std::optional<PalettePoint> PointOf(std::string_view line) {
  const int level = LevelOf(NumberAt(line, 0, 4));
  if (level < 0 || level >= kLevels) return std::nullopt;
  const auto part = [line](std::size_t column) {
    return std::clamp(NumberAt(line, column, 3), 0, 255);
  };
  return PalettePoint{level, ColourOf(part(5), part(9), part(13))};
}

COLORREF& At(LevelColours& colours, int level) { return colours[static_cast<std::size_t>(level)]; }

// The colour at `level` on the straight line between two points on different levels.
COLORREF Between(const PalettePoint& from, const PalettePoint& to, int level) {
  const auto blend = [&](int first, int last) {
    const double way = static_cast<double>(level - from.level) * (last - first);
    return static_cast<int>(first + way / (to.level - from.level));
  };
  return ColourOf(blend(Red(from.colour), Red(to.colour)),
                  blend(Green(from.colour), Green(to.colour)),
                  blend(Blue(from.colour), Blue(to.colour)));
}

}  // namespace

bool IsLeftOut(std::size_t row, COLORREF colour) {
  return colour == kBlack && !IsAlwaysWritten(row);
}

std::optional<PalettePoints> ReadPalette(const CString& path) {
  PalettePoints points;
  LineReader reader(path, kLineLimit);
  if (!reader.IsOpen()) return std::nullopt;
  std::string_view line;
  while (points.size() < kMostPalettePoints && reader.ReadLine(line)) {
    if (line.empty() || line.front() == ';') continue;
    if (const auto point = PointOf(line)) points.push_back(*point);
  }
  return points;
}

LevelColours ExactColours(const PalettePoints& points) {
  LevelColours colours{};
  for (const PalettePoint& point : points) At(colours, point.level) = point.colour;
  return colours;
}

LevelColours InterpolatedColours(const PalettePoints& points) {
  LevelColours colours{};
  for (std::size_t i = 1; i < points.size(); ++i) {
    const PalettePoint& from = points[i - 1];
    const PalettePoint& to = points[i];
    const int step = from.level < to.level ? 1 : -1;
    for (int level = from.level; level != to.level; level += step) {
      At(colours, level) = Between(from, to, level);
    }
    At(colours, to.level) = to.colour;
  }
  return colours;
}

std::string PaletteText(const CString& path, const CString& name, const RowColours& colours) {
  std::string text;
  text.append(";").append(name).append("  ").append(path).append("  \r\n");
  for (std::size_t row = 0; row < colours.size(); ++row) {
    const COLORREF colour = colours[row];
    if (IsLeftOut(row, colour)) continue;
    CString numbers;
    numbers.Format("%4d %3d %3d %3d", kRowElevations[row], Red(colour), Green(colour),
                   Blue(colour));
    text.append(numbers).append(kCaptions[row]).append("\r\n");
  }
  return text;
}

}  // namespace orreryui
