// Points as the dialogs read them: the packed points of a file, in its order and at most
// kMostDataLines. A file that can't be opened has none; a line of more than 199 bytes gives
// several.
#ifndef ORRERYUI_POINTS_POINT_FILE_H_
#define ORRERYUI_POINTS_POINT_FILE_H_

#include <orreryui/cstring.h>

#include <vector>

namespace orreryui {

// The points of an album (points/album_file.h).
std::vector<CString> ReadAlbumPoints(const CString& path);

// The points of a map: each line that isn't empty is one, whatever it begins with, and no line ends
// the file.
std::vector<CString> ReadPointFile(const CString& path);

}  // namespace orreryui

#endif  // ORRERYUI_POINTS_POINT_FILE_H_
