// The album file: the files and memos that a person has tied to a place, one data line for each.
//
//   place latitude longitude item file-1 [file-2]
//
// One blank separates the fields, and file-2 runs to the end of the line. Of a picture and a text
// file the picture stands first. No field may hold a blank, #, @ or $; nobody refuses them, and who
// reads such a line finds its fields moved. Empty lines and lines that begin with ; or M
// hold no data, and a line that reads 999 ends the album.
//
// Paths and texts are in code page 932. Nothing is reported to the user.
#ifndef ORRERYUI_POINTS_ALBUM_FILE_H_
#define ORRERYUI_POINTS_ALBUM_FILE_H_

#include <orreryui/cstring.h>

#include <vector>

#include "points/data_line.h"

namespace orreryui {

// The line that ends the data: what stands behind it isn't seen.
inline constexpr char kEndMarker[] = "999";

// Adds a line for `data`, which has a place and at least one of the two files. `first` starts the
// album: the file is made, or loses what it held. Otherwise it must exist. False: the file is as it
// was, since the disk refused, or a line that begins with ; or has more than 199 bytes would be
// lost or cut.
bool AppendAlbumLine(const CString& path, bool first, const DataLine& data);

// Makes an album without data; a file that exists loses what it held. False: it is as it was.
bool CreateEmptyAlbum(const CString& path);

// The data lines up to the end marker, in file order. A file that can't be opened has none. A line
// of more than 199 bytes gives several.
std::vector<CString> ReadAlbumLines(const CString& path);

}  // namespace orreryui

#endif  // ORRERYUI_POINTS_ALBUM_FILE_H_
