// Japanese text in the code: "配色"_sj is a `const char*` to the text in code page 932.
//
// The text is converted at compile time, lives as long as the program, ends in a NUL and may stand
// in a constexpr table. A character that the code page lacks is a compile error.
#ifndef ORRERYUI_PLATFORM_STRINGS_JAPANESE_LITERAL_H_
#define ORRERYUI_PLATFORM_STRINGS_JAPANESE_LITERAL_H_

#include <cstddef>
#include <string_view>

#include <orreryui/detail/code_page_932_code.h>
#include <orreryui/detail/utf8_characters.h>

namespace orreryui {

// A text of kSize - 1 bytes of UTF-8 in code page 932, which never takes more bytes; NULs fill up.
template <std::size_t kSize>
struct JapaneseText {
  char bytes[kSize] = {};
  bool complete = true;  // the code page has all characters of the text

  // NOLINTNEXTLINE(google-explicit-constructor): the form that a literal operator asks for.
  consteval JapaneseText(const char (&text)[kSize]) {
    char* to = bytes;
    for (std::string_view rest(text, kSize - 1); !rest.empty();) {
      const int code = detail::CodeOf(detail::TakeUtf8(rest));
      if (code == detail::kNoCode) complete = false;
      if (code > 0xFF) *to++ = static_cast<char>(code >> 8);
      *to++ = static_cast<char>(code & 0xFF);
    }
  }
};

// Where the bytes of a literal lie. Unlike a template parameter, a variable obeys the visibility
// that the library is built with.
template <JapaneseText kText>
inline constexpr JapaneseText kJapaneseText = kText;

template <JapaneseText kText>
consteval const char* operator""_sj() {
  static_assert(kText.complete, "code page 932 lacks a character of this text");
  return kJapaneseText<kText>.bytes;
}

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_STRINGS_JAPANESE_LITERAL_H_
