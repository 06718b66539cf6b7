// The part of a long text that a multi-line edit shows. Drawing a text costs many times its bytes,
// so that one of more than a megabyte is handed out in parts of some two thousand lines; the user
// gets to the others by scrolling. Texts are in code page 932, lines end in LF or CR LF.
#ifndef ORRERYUI_PLATFORM_DIALOGS_TEXT_PART_H_
#define ORRERYUI_PLATFORM_DIALOGS_TEXT_PART_H_

#include <cstddef>
#include <string_view>

#include "platform/front_end.h"

namespace orreryui {

inline constexpr std::size_t kLongestWholeText = 1u << 20;
inline constexpr int kLinesOfPart = 2048;

// A run of whole lines. The line end behind its last line isn't part of it.
struct ShownPart {
  std::size_t begin = 0;
  std::size_t end = 0;
  TextPart lines;
};

// The first part of a text that wasn't shown before: all of it, unless it is long.
ShownPart FirstPart(std::string_view text);

// The part with the line `line` in its middle, or as near to that as the ends of the text allow.
// `shown` is another part of the same text.
ShownPart PartAround(std::string_view text, const ShownPart& shown, int line);

// The part once its bytes, until now `old_bytes`, have become `new_bytes`.
ShownPart EditedPart(const ShownPart& shown, std::string_view old_bytes,
                     std::string_view new_bytes);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_TEXT_PART_H_
