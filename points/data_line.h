// What a data line says: the line of an album and of a file of points.
#ifndef ORRERYUI_POINTS_DATA_LINE_H_
#define ORRERYUI_POINTS_DATA_LINE_H_

#include <orreryui/cstring.h>

#include <cstddef>

namespace orreryui {

// The bytes that a reader takes for a line, and one for the NUL. A longer line comes as several.
inline constexpr std::size_t kDataLineLimit = 200;

// As many data lines of a file as are read. Those behind them stay in the file.
inline constexpr std::size_t kMostDataLines = 99;

// Coordinates are text, in degrees as the user or the host wrote them.
struct DataLine {
  CString place;
  CString latitude;
  CString longitude;
  CString item;
  CString text_file;
  CString picture;
};

}  // namespace orreryui

#endif  // ORRERYUI_POINTS_DATA_LINE_H_
