// Palette files: text files that give elevations of the relief map their colours.
//
// Lines that are empty or begin with ; mean nothing. Each other line is a row of four numbers in
// fixed columns, each padded with blanks on the left: the elevation in metres (columns 0 to 3), red
// (5 to 7), green (9 to 11) and blue (13 to 15), from 0 to 255. What stands behind column 15 is for
// human readers. Elevation 0 is the sea and 1 the land at 0 m.
//
// The dialogs know eleven rows, at kRowElevations. Files that were edited by hand may have others.
#ifndef ORRERYUI_APPEARANCE_PALETTE_FILE_H_
#define ORRERYUI_APPEARANCE_PALETTE_FILE_H_

#include <orreryui/cstring.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "appearance/colour.h"

namespace orreryui {

// Elevations count in levels, steps of 15 m from 0 to 255.
inline constexpr int kLevels = 256;

constexpr int LevelOf(int elevation) {
  if (elevation == 1) return 1;
  if (elevation == 4000) return 255;
  return elevation / 15;
}

// In metres, in the order in which they are written.
inline constexpr std::array<int, 11> kRowElevations = {0,    1,    100,  200,  500, 1000,
                                                       1500, 2000, 2500, 3000, 4000};

// A colour for each of kRowElevations. Black means that the file leaves the row out, so that the
// elevation takes a colour between those of its neighbours; the first two rows and the last one are
// always written.
using RowColours = std::array<COLORREF, kRowElevations.size()>;

bool IsLeftOut(std::size_t row, COLORREF colour);

// A row that was read.
struct PalettePoint {
  int level = 0;  // 0 to kLevels - 1
  COLORREF colour = kBlack;
};

inline constexpr std::size_t kMostPalettePoints = 256;

using PalettePoints = std::vector<PalettePoint>;

// The rows of a file in file order; nothing if it can't be opened. Rows that lie on no level are
// left out, and so is what comes behind kMostPalettePoints rows. Parts of a colour beyond 0 and 255
// are taken for these.
std::optional<PalettePoints> ReadPalette(const CString& path);

using LevelColours = std::array<COLORREF, kLevels>;

// The colours that the points themselves give. A level without a point is black; of several points
// on one level the last one counts.
LevelColours ExactColours(const PalettePoints& points);

// Runs in a straight line from each point to the next one in file order; what a later pair covers
// replaces what an earlier one did, and of two neighbours on one level the later one counts. Levels
// that no pair covers are black, which with fewer than two points means all of them.
LevelColours InterpolatedColours(const PalettePoints& points);

// The bytes of a palette's file. Its path and `name`, the palette's name, go into a comment.
std::string PaletteText(const CString& path, const CString& name, const RowColours& colours);

}  // namespace orreryui

#endif  // ORRERYUI_APPEARANCE_PALETTE_FILE_H_
