// The picture chooser of the dialogs.
#ifndef ORRERYUI_FRAME_CHOOSE_PICTURE_H_
#define ORRERYUI_FRAME_CHOOSE_PICTURE_H_

#include <orreryui/cstring.h>

namespace orreryui {

// Lets the user choose a picture that exists, starting in the folder of the file `current`, which
// may be empty. Returns its full path in lower case, or the empty string if the user gave up. All
// is in code page 932.
CString ChoosePicture(const char* current);

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_CHOOSE_PICTURE_H_
