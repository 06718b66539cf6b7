// Packed points: the data of a point in one string, which the lists of the dialogs hold.
//
//   place#item@file-1$latitude$longitude[$file-2]
//
// What stands before the @ is what a list shows. Nothing is refused: a separator that is missing
// leaves the field before it empty, and what is left of the text goes to the fields behind.
#ifndef ORRERYUI_POINTS_PACKED_POINT_H_
#define ORRERYUI_POINTS_PACKED_POINT_H_

#include <orreryui/cstring.h>

#include <vector>

#include "points/data_line.h"

namespace orreryui {

// The packed point of a data line, as it stands in an album or in a file of points.
CString PackPointLine(const CString& line);

// The packed points of several lines.
std::vector<CString> PackPointLines(const std::vector<CString>& lines);

// The fields of a packed point. The first file is a picture if its name holds the suffix of a
// picture anywhere, whatever its case; the second one, if there is one, is the other kind then.
DataLine UnpackPoint(const CString& packed);

// Whether a name, or any text with names in it, holds the suffix of a picture, in whatever case.
bool HoldsPictureSuffix(CString text);

// What a list shows for a packed point; all of it if it has no @.
CString PointLabel(const CString& packed);

}  // namespace orreryui

#endif  // ORRERYUI_POINTS_PACKED_POINT_H_
