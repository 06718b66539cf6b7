// What a handler may open above its dialog, other than a dialog: message boxes, choosers, and the
// wait for another program. Without a front end each of them acts as if the user had given up.
#ifndef ORRERYUI_PLATFORM_DIALOGS_INNER_WINDOWS_H_
#define ORRERYUI_PLATFORM_DIALOGS_INNER_WINDOWS_H_

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/front_end.h"

namespace orreryui {

// A warning with OK and Cancel, in code page 932. Returns IDOK or IDCANCEL.
int AfxMessageBox(const char* text);

// Colours are 0x00BBGGRR. Nothing if the user gave up.
std::optional<std::uint32_t> ChooseColour(std::uint32_t start);

// The full path that the user chose, in UTF-8 and the system's own form; nothing if the user gave
// up.
std::optional<std::string> ChooseFile(const FileChooserRequest& request);

// The system's default beep.
void MessageBeep();

// Returns once `done` returns true, which is asked over and over, or the program quits; the dialogs
// that are open keep painting themselves and take no input meanwhile.
void WaitUntil(const std::function<bool()>& done);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_INNER_WINDOWS_H_
