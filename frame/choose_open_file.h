// The open-file chooser of the dialogs.
#ifndef ORRERYUI_FRAME_CHOOSE_OPEN_FILE_H_
#define ORRERYUI_FRAME_CHOOSE_OPEN_FILE_H_

#include <orreryui/cstring.h>

namespace orreryui {

// Beeps and lets the user choose a file that exists. The name field starts with `start_name`, and a
// name that has no extension and isn't there gets `default_extension`. `filter` is what the user
// can narrow the list to beside all files: a label, a vertical bar and a pattern, such as
// "text (*.txt)|*.txt". The chooser starts in the folder of the file `current`, which may be empty.
// All are in code page 932.
//
// Returns the full path in lower case, or the empty string if the user gave up. A file whose path
// code page 932 can't tell can't be chosen; where a front end lets it through, it beeps once more
// and counts as given up.
CString ChooseOpenFile(const char* default_extension, const char* start_name, const char* filter,
                       const char* current);

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_CHOOSE_OPEN_FILE_H_
