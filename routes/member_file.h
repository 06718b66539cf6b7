// Member files: the points of a stored map, a text file for each map in the folder of the maps. A
// line is like that of an album (points/album_file.h), in lower case, and all lines are points.
#ifndef ORRERYUI_ROUTES_MEMBER_FILE_H_
#define ORRERYUI_ROUTES_MEMBER_FILE_H_

#include <orreryui/cstring.h>

#include <vector>

#include "routes/master_list.h"

namespace orreryui {

// The name of a new member file, by the local time: G, the last two digits of the year, the month
// in one digit (A to C from October on), the day, the hour, a dot, the minute without a zero in
// front, and R for a route or A for an area. Where the folder has that file already it is the name
// of the next minute that is free.
CString MakeMemberName(const CString& folder, MapKind kind);

// The lines that a member file has for these packed points. The second file of a point stands
// behind the first one if one of the two seems to be a picture and one a text; otherwise behind the
// longitude, with a $ between them. PackPointLine understands both.
std::vector<CString> MemberLines(const std::vector<CString>& points);

// Whether a reader gets the line back: as one line, and whole.
bool IsMemberLine(const CString& line);

// Adds to a change that the file, which mustn't exist, comes with these lines.
void WriteMemberFile(FileChanges& changes, const CString& path, const std::vector<CString>& lines);

}  // namespace orreryui

#endif  // ORRERYUI_ROUTES_MEMBER_FILE_H_
