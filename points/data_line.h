// What a data line says: the line of an album and of a file of points.
#ifndef ORRERYUI_POINTS_DATA_LINE_H_
#define ORRERYUI_POINTS_DATA_LINE_H_

#include <orreryui/cstring.h>

namespace orreryui {

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
