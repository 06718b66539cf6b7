// The text file that belongs to a registered point: its main text, then a line "999", then a memo.
// Without that line all of it is main text. Lines that begin with ; and empty lines are text like
// any other.
//
// Paths and texts are in code page 932. The lines of a text end in CR LF, also where the file has
// LF alone, and the last one too; behind a file's last line end stands one empty line more. A line
// of more than 3198 bytes (3197 in a preview) comes as several. What follows the first gigabyte of
// a text is left out. A file that can't be opened reads as an empty one, and one that can't be read
// to its end as the lines before the failure.
#ifndef ORRERYUI_PRESENTATION_ATTACHED_TEXT_H_
#define ORRERYUI_PRESENTATION_ATTACHED_TEXT_H_

#include <orreryui/cstring.h>

namespace orreryui {

// The lines before the first "999".
CString ReadMainText(const CString& path);

// A head line, and the lines behind the first "999"; a further "999" is left out.
CString ReadMemo(const CString& path);

// A head line, and the first 16 lines of the file, "999" like any other.
CString ReadPreview(const CString& path);

}  // namespace orreryui

#endif  // ORRERYUI_PRESENTATION_ATTACHED_TEXT_H_
