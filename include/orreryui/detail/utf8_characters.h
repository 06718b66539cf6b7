// Reading and writing UTF-8, one character at a time, at run time and at compile time.
#ifndef ORRERYUI_DETAIL_UTF8_CHARACTERS_H_
#define ORRERYUI_DETAIL_UTF8_CHARACTERS_H_

#include <string>
#include <string_view>

namespace orreryui::detail {

// What stands for bytes that make no character.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// Takes a sequence of kLength bytes off `text`, whose first byte announces that many. `least` is
// the first character that needs so many. Of a malformed sequence it takes one byte.
template <std::size_t kLength>
constexpr char32_t TakeUtf8Sequence(std::string_view& text, char32_t least) {
  if (text.size() >= kLength) {
    char32_t character = static_cast<unsigned char>(text[0]) & (0x7Fu >> kLength);
    bool good = true;
    for (std::size_t i = 1; i < kLength; ++i) {
      const auto byte = static_cast<unsigned char>(text[i]);
      good = good && (byte & 0xC0u) == 0x80;
      character = character << 6 | (byte & 0x3Fu);
    }
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (good && !surrogate && character >= least && character <= 0x10FFFF) {
      text.remove_prefix(kLength);
      return character;
    }
  }
  text.remove_prefix(1);
  return kReplacementCharacter;
}

// Takes the first character off `text`, which must not be empty. Where a malformed sequence
// begins, takes one byte and returns kReplacementCharacter.
constexpr char32_t TakeUtf8(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first >= 0xE0 && first < 0xF0) return TakeUtf8Sequence<3>(text, 0x800);
  if (first >= 0xC2 && first < 0xE0) return TakeUtf8Sequence<2>(text, 0x80);
  if (first >= 0xF0 && first < 0xF5) return TakeUtf8Sequence<4>(text, 0x10000);
  text.remove_prefix(1);
  return first < 0x80 ? first : kReplacementCharacter;
}

// Writes `character`, up to U+10FFFF, at `to` and returns the end of what it wrote: at most four
// bytes, and at most three for characters up to U+FFFF.
constexpr char* PutUtf8(char* to, char32_t character) {
  if (character < 0x80) {
    *to++ = static_cast<char>(character);
    return to;
  }
  if (character < 0x800) {
    *to++ = static_cast<char>(0xC0 | character >> 6);
  } else {
    if (character < 0x10000) {
      *to++ = static_cast<char>(0xE0 | character >> 12);
    } else {
      *to++ = static_cast<char>(0xF0 | character >> 18);
      *to++ = static_cast<char>(0x80 | (character >> 12 & 0x3F));
    }
    *to++ = static_cast<char>(0x80 | (character >> 6 & 0x3F));
  }
  *to++ = static_cast<char>(0x80 | (character & 0x3F));
  return to;
}

inline void AppendUtf8(std::string& text, char32_t character) {
  char bytes[4];
  text.append(bytes, static_cast<std::size_t>(PutUtf8(bytes, character) - bytes));
}

}  // namespace orreryui::detail

#endif  // ORRERYUI_DETAIL_UTF8_CHARACTERS_H_
