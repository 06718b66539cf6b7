// The external text editor, a program of the user's own.
#ifndef ORRERYUI_FRAME_RUN_EDITOR_H_
#define ORRERYUI_FRAME_RUN_EDITOR_H_

namespace orreryui {

// Starts the command `editor` (platform/system/command_line.h) with `path` behind it and returns
// once the program has ended. Meanwhile the dialogs take no input and keep painting themselves.
// Neither part is quoted; a command line of more than 299 bytes starts nothing, nor does an empty
// command. Where its window opens, and how large, is left to the program and the desktop.
//
// Returns whether a program ran. Nothing is reported to the user.
bool RunEditor(const char* editor, const char* path);

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_RUN_EDITOR_H_
