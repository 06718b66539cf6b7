// Text between code page 932, which dialogs, files and hosts speak, and UTF-8, which the seam to
// the front ends and the file system speak.
//
// The table is the library's own (code_page_932_table.h), and 80, A0, FD, FE and FF, which mean
// nothing, are U+0080, U+00A0 and U+F8F1 to U+F8F3. Of the codes that share a character, one is
// written; the others are only read. The tables for fast conversion are built at first use, by one
// thread if several come at once.
#ifndef ORRERYUI_PLATFORM_STRINGS_CODE_PAGE_932_H_
#define ORRERYUI_PLATFORM_STRINGS_CODE_PAGE_932_H_

#include <string>
#include <string_view>

namespace orreryui {

// Never fails: what makes no character (an unassigned pair, a lead byte alone) becomes one U+FFFD.
std::string ToUtf8(std::string_view bytes);
inline std::string ToUtf8(const char* bytes) { return ToUtf8(std::string_view(bytes)); }

struct Encoded {
  std::string bytes;    // in code page 932
  std::string refused;  // the characters that it lacks, in order, in UTF-8; malformed bytes and
                        // U+FFFD are listed as U+FFFD
};

// Encodes text that a user typed or a file system gave. Kana that are followed by a combining mark
// of voice are joined with it. Seven characters that other systems use for those of this code page
// are taken for them, such as U+301C for U+FF5E. The yen sign isn't: it doesn't become a backslash.
Encoded FromUtf8(std::string_view text);

// The bytes for an edit box that held `old_bytes` and now reads `new_text`. What both have in
// common at the start and at the end keeps its old bytes, so that bytes which make no character
// and codes which are only read survive; what lies between is encoded as FromUtf8 does. Line ends
// are alike however they are written, since a box may know one kind only; new ones are CR LF. A
// lead byte alone that would swallow what follows it now is left out and listed as refused.
Encoded MergeEdit(std::string_view old_bytes, std::string_view new_text);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_STRINGS_CODE_PAGE_932_H_
