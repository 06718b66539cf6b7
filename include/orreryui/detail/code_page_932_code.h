// The code of one character in code page 932, at run time and at compile time.
#ifndef ORRERYUI_DETAIL_CODE_PAGE_932_CODE_H_
#define ORRERYUI_DETAIL_CODE_PAGE_932_CODE_H_

#include <orreryui/detail/code_page_932_table.h>

namespace orreryui::detail {

// What the functions below return for a character without code.
inline constexpr int kNoCode = -1;

// The code of a character that follows from its number and stands in no table: the single bytes,
// and the user-defined area, whose rows F0 to F9 are U+E000 to U+E757.
constexpr int ComputedCode(char32_t character) {
  if (character <= 0x80 || character == 0xA0) return static_cast<int>(character);
  if (character >= 0xFF61 && character <= 0xFF9F)
    return static_cast<int>(character - 0xFF61 + 0xA1);
  if (character >= 0xF8F1 && character <= 0xF8F3)
    return static_cast<int>(character - 0xF8F1 + 0xFD);
  if (character < 0xE000 || character > 0xE757) return kNoCode;
  const auto cell = static_cast<int>(character - 0xE000);
  const int trail = 0x40 + cell % 188;
  return (0xF0 + cell / 188) << 8 | (trail < 0x7F ? trail : trail + 1);
}

// The code that a character is written as: a single byte, or lead byte * 256 + trail byte.
constexpr int CodeOf(char32_t character) {
  const int computed = ComputedCode(character);
  if (computed != kNoCode) return computed;
  const char16_t* const pairs = kCodePage932.data();
  std::size_t first = 0;
  std::size_t last = kCodePage932.size() / 2;
  while (last - first > 1) {
    const std::size_t middle = (first + last) / 2;
    if (pairs[2 * middle] <= character) {
      first = middle;
    } else {
      last = middle;
    }
  }
  return pairs[2 * first] == character ? pairs[2 * first + 1] : kNoCode;
}

}  // namespace orreryui::detail

#endif  // ORRERYUI_DETAIL_CODE_PAGE_932_CODE_H_
