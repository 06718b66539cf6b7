// Text between code page 932, which dialogs, files and hosts speak, and UTF-8, which the seam to
// the front ends and the file system speak: what orreryui/utf8.h has, and edits.
#ifndef ORRERYUI_PLATFORM_STRINGS_CODE_PAGE_932_H_
#define ORRERYUI_PLATFORM_STRINGS_CODE_PAGE_932_H_

#include <string_view>

#include <orreryui/utf8.h>

namespace orreryui {

// The bytes for an edit box that held `old_bytes` and now reads `new_text`. What both have in
// common at the start and at the end keeps its old bytes, so that bytes which make no character
// and codes which are only read survive; what lies between is encoded as FromUtf8 does. Line ends
// are alike however they are written, since a box may know one kind only; new ones are CR LF. A
// lead byte alone that would swallow what follows it now is left out and listed as refused.
Encoded MergeEdit(std::string_view old_bytes, std::string_view new_text);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_STRINGS_CODE_PAGE_932_H_
