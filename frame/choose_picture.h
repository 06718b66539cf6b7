// The picture chooser of the dialogs.
#ifndef ORRERYUI_FRAME_CHOOSE_PICTURE_H_
#define ORRERYUI_FRAME_CHOOSE_PICTURE_H_

#include <orreryui/cstring.h>

namespace orreryui {

// Lets the user choose a picture. That is up to OnPictureFileDialog of the sibling library
// KOBALTFX, which takes nothing and returns a CString by value, where the system's loader finds the
// library (libkobaltfx.so); what it returns is returned as it is. Where there is no such function,
// or it throws, it is up to the open-file chooser with a preview, which starts with the file
// `current`, which may be empty.
//
// Returns the path in code page 932, or the empty string if the user gave up. The open-file
// chooser's is in lower case.
CString ChoosePicture(const char* current);

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_CHOOSE_PICTURE_H_
