// The conversions between code page 932 and UTF-8: what orreryui/utf8.h stands on.
#ifndef ORRERYUI_DETAIL_CODE_PAGE_932_H_
#define ORRERYUI_DETAIL_CODE_PAGE_932_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include <orreryui/cstring.h>
#include <orreryui/detail/code_page_932_code.h>
#include <orreryui/detail/utf8_characters.h>

namespace orreryui {

struct Encoded {
  std::string bytes;    // in code page 932
  std::string refused;  // the characters that it lacks, in order, in UTF-8; malformed bytes and
                        // U+FFFD are listed as U+FFFD
};

namespace detail {

using Code = std::uint16_t;

// Characters that other systems use for those of this code page, and these.
inline constexpr char16_t kNeighbours[][2] = {
    {0x301C, 0xFF5E},  // wave dash
    {0x2212, 0xFF0D},  // minus
    {0x2016, 0x2225},  // double vertical line
    {0x00A2, 0xFFE0},  // cent
    {0x00A3, 0xFFE1},  // pound
    {0x00AC, 0xFFE2},  // not
    {0x2014, 0x2015},  // dash
};

// Both directions by index. A code is a single byte, or lead byte * 256 + trail byte.
struct Tables {
  std::array<char16_t, 0x10000> characters;  // kReplacementCharacter for what is unassigned
  std::array<Code, 0x10000> codes{};         // 0 for a character without code

  Tables() {
    characters.fill(static_cast<char16_t>(kReplacementCharacter));
    for (char32_t character = 0; character < 0x10000; ++character) {
      const int code = ComputedCode(character);
      if (code != kNoCode) Join(static_cast<Code>(code), static_cast<char16_t>(character));
    }
    for (std::size_t i = 0; i < kCodePage932.size(); i += 2) {
      Join(static_cast<Code>(kCodePage932[i + 1]), kCodePage932[i]);
    }
    for (std::size_t i = 0; i < kCodePage932DecodeOnly.size(); i += 2) {
      characters[kCodePage932DecodeOnly[i + 1]] = kCodePage932DecodeOnly[i];
    }
    for (const auto& [typed, meant] : kNeighbours) codes[typed] = codes[meant];
  }

  void Join(Code code, char16_t character) {
    characters[code] = character;
    codes[character] = code;
  }
};

inline const Tables& GetTables() {
  static const Tables tables;
  return tables;
}

// The length of the ASCII text that `text` begins with.
inline std::size_t AsciiLength(std::string_view text) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  std::size_t length = 0;
  for (std::uint64_t block; length + sizeof block <= text.size(); length += sizeof block) {
    std::memcpy(&block, text.data() + length, sizeof block);
    if (block & kHighBits) break;
  }
  while (length < text.size() && static_cast<unsigned char>(text[length]) < 0x80) ++length;
  return length;
}

// Takes the first character off `bytes`, which must not be empty.
inline char16_t TakeCharacter(const Tables& tables, std::string_view& bytes) {
  const char next = bytes.size() > 1 ? bytes[1] : '\0';
  const auto first = static_cast<unsigned char>(bytes[0]);
  if (CharacterLength(bytes[0], next) == 1) {
    bytes.remove_prefix(1);
    return tables.characters[first];
  }
  bytes.remove_prefix(2);
  return tables.characters[static_cast<std::size_t>(first << 8 | static_cast<unsigned char>(next))];
}

// Encodes one character at `to`, at most two bytes, or lists it in `refused`. Returns the end of
// what it wrote.
inline char* PutCharacter(const Tables& tables, char* to, char32_t character,
                          std::string& refused) {
  const Code code = character < 0x10000 ? tables.codes[character] : Code{0};
  if (code > 0xFF) *to++ = static_cast<char>(code >> 8);
  if (code != 0 || character == 0) {
    *to++ = static_cast<char>(code & 0xFF);
  } else {
    AppendUtf8(refused, character);
  }
  return to;
}

inline constexpr char32_t kVoiced = 0x3099;
inline constexpr char32_t kSemiVoiced = 0x309A;

constexpr bool IsMark(char32_t character) {
  return character == kVoiced || character == kSemiVoiced;
}

// The kana that `base` and a combining mark make, or 0. In Unicode a voiced kana follows its base
// and a semi-voiced one comes after that, and katakana stand 60 hexadecimal above hiragana.
inline char32_t ComposeKana(char32_t base, char32_t mark) {
  constexpr std::u32string_view kTakeBoth = U"はひふへほ";
  constexpr std::u32string_view kTakeVoiced = U"かきくけこさしすせそたちつてとゝ";
  const bool katakana = base >= 0x30A0;
  const char32_t hiragana = katakana ? base - 0x60 : base;
  if (kTakeBoth.find(hiragana) != kTakeBoth.npos) return base + (mark == kVoiced ? 1 : 2);
  if (mark != kVoiced) return 0;
  if (kTakeVoiced.find(hiragana) != kTakeVoiced.npos) return base + 1;
  if (hiragana == U'う') return base + (U'ゔ' - U'う');
  if (base >= U'ワ' && base <= U'ヲ') return base + (U'ヷ' - U'ワ');
  return 0;
}

// The characters of `text`, kana joined with the marks that follow them.
inline std::u32string ReadComposed(std::string_view text) {
  std::u32string characters;
  while (!text.empty()) {
    const char32_t character = TakeUtf8(text);
    const char32_t composed =
        IsMark(character) && !characters.empty() ? ComposeKana(characters.back(), character) : 0;
    if (composed) {
      characters.back() = composed;
    } else {
      characters += character;
    }
  }
  return characters;
}

inline Encoded Encode(std::u32string_view characters) {
  const Tables& tables = GetTables();
  Encoded result{std::string(characters.size() * 2, '\0'), ""};
  char* to = result.bytes.data();
  for (const char32_t character : characters) {
    to = PutCharacter(tables, to, character, result.refused);
  }
  result.bytes.resize(static_cast<std::size_t>(to - result.bytes.data()));
  return result;
}

}  // namespace detail
}  // namespace orreryui

#endif  // ORRERYUI_DETAIL_CODE_PAGE_932_H_
