// The open-file chooser of the dialogs.
#ifndef ORRERYUI_FRAME_CHOOSE_OPEN_FILE_H_
#define ORRERYUI_FRAME_CHOOSE_OPEN_FILE_H_

#include <orreryui/cstring.h>

namespace orreryui {

// Beeps and lets the user choose a file that exists. The chooser starts in the folder of the file
// `current`, which may be empty, and its name field with `start_name`, or where that is empty with
// the name of `current`. A name that has no extension and isn't there gets `default_extension`.
// `filter` is what the user can narrow the list to beside all files: a label, a vertical bar and
// patterns with semicolons between them, such as "text (*.txt)|*.txt". All are in code page 932.
// With `preview_pictures` the chooser shows the picture in the file that is selected.
//
// Returns the full path in lower case, or the empty string if the user gave up. A file whose path
// code page 932 can't tell can't be chosen; where a front end lets it through, it beeps once more
// and counts as given up.
CString ChooseOpenFile(const char* default_extension, const char* start_name, const char* filter,
                       const char* current, bool preview_pictures = false);

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_CHOOSE_OPEN_FILE_H_
