#include "platform/strings/code_page_932.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

#include <orreryui/cstring.h>

#include "platform/strings/code_page_932_code.h"
#include "platform/strings/utf8.h"

namespace orreryui {
namespace {

using Code = std::uint16_t;

// Characters that other systems use for those of this code page, and these.
constexpr char16_t kNeighbours[][2] = {
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

const Tables& GetTables() {
  static const Tables tables;
  return tables;
}

// The length of the ASCII text that `text` begins with.
std::size_t AsciiLength(std::string_view text) {
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
char16_t TakeCharacter(const Tables& tables, std::string_view& bytes) {
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
char* PutCharacter(const Tables& tables, char* to, char32_t character, std::string& refused) {
  const Code code = character < 0x10000 ? tables.codes[character] : Code{0};
  if (code > 0xFF) *to++ = static_cast<char>(code >> 8);
  if (code != 0 || character == 0) {
    *to++ = static_cast<char>(code & 0xFF);
  } else {
    AppendUtf8(refused, character);
  }
  return to;
}

constexpr char32_t kVoiced = 0x3099;
constexpr char32_t kSemiVoiced = 0x309A;

constexpr bool IsMark(char32_t character) {
  return character == kVoiced || character == kSemiVoiced;
}

// The kana that `base` and a combining mark make, or 0. In Unicode a voiced kana follows its base
// and a semi-voiced one comes after that, and katakana stand 60 hexadecimal above hiragana.
char32_t ComposeKana(char32_t base, char32_t mark) {
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
std::u32string ReadComposed(std::string_view text) {
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

Encoded Encode(std::u32string_view characters) {
  const Tables& tables = GetTables();
  Encoded result{std::string(characters.size() * 2, '\0'), ""};
  char* to = result.bytes.data();
  for (const char32_t character : characters) {
    to = PutCharacter(tables, to, character, result.refused);
  }
  result.bytes.resize(static_cast<std::size_t>(to - result.bytes.data()));
  return result;
}

struct Decoded {
  std::u32string characters;
  std::vector<std::size_t> starts;  // of each character in the bytes, and the end of the last one
};

Decoded ReadCodePage(std::string_view bytes) {
  const Tables& tables = GetTables();
  Decoded decoded;
  std::string_view rest = bytes;
  while (!rest.empty()) {
    decoded.starts.push_back(bytes.size() - rest.size());
    decoded.characters += TakeCharacter(tables, rest);
  }
  decoded.starts.push_back(bytes.size());
  return decoded;
}

// A text whose line ends, however they are written, count as one character each.
struct Folded {
  std::u32string characters;
  std::vector<std::size_t> places;  // where each of them begins, and the end of the text
};

Folded FoldLineEnds(std::u32string_view text) {
  Folded folded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool ends_line = text[i] == U'\r' || text[i] == U'\n';
    folded.characters += ends_line ? U'\n' : text[i];
    folded.places.push_back(i);
    if (text[i] == U'\r' && i + 1 < text.size() && text[i + 1] == U'\n') ++i;
  }
  folded.places.push_back(text.size());
  return folded;
}

// The same with CR LF for each line end.
std::u32string UnfoldLineEnds(std::u32string_view folded) {
  std::u32string text;
  for (const char32_t character : folded) {
    if (character == U'\n') text += U'\r';
    text += character;
  }
  return text;
}

std::size_t CommonStart(std::u32string_view a, std::u32string_view b) {
  const auto differs = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
  return static_cast<std::size_t>(differs - a.begin());
}

std::size_t CommonEnd(std::u32string_view a, std::u32string_view b) {
  const auto differs = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend()).first;
  return static_cast<std::size_t>(differs - a.rbegin());
}

}  // namespace

std::string ToUtf8(std::string_view bytes) {
  std::size_t ascii = AsciiLength(bytes);
  if (ascii == bytes.size()) return std::string(bytes);
  const Tables& tables = GetTables();
  std::string text(bytes.size() * 3, '\0');
  char* to = text.data();
  while (!bytes.empty()) {
    std::memcpy(to, bytes.data(), ascii);
    to += ascii;
    bytes.remove_prefix(ascii);
    while (!bytes.empty() && static_cast<unsigned char>(bytes[0]) >= 0x80) {
      to = PutUtf8(to, TakeCharacter(tables, bytes));
    }
    ascii = AsciiLength(bytes);
  }
  text.resize(static_cast<std::size_t>(to - text.data()));
  return text;
}

Encoded FromUtf8(std::string_view text) {
  const Tables& tables = GetTables();
  // No character takes more bytes in this code page than in UTF-8.
  Encoded result{std::string(text.size(), '\0'), ""};
  char* to = result.bytes.data();
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t ascii = AsciiLength(rest);
    std::memcpy(to, rest.data(), ascii);
    to += ascii;
    rest.remove_prefix(ascii);
    while (!rest.empty() && static_cast<unsigned char>(rest[0]) >= 0x80) {
      const char32_t character = TakeUtf8(rest);
      if (IsMark(character)) return Encode(ReadComposed(text));
      to = PutCharacter(tables, to, character, result.refused);
    }
  }
  result.bytes.resize(static_cast<std::size_t>(to - result.bytes.data()));
  return result;
}

Encoded MergeEdit(std::string_view old_bytes, std::string_view new_text) {
  const Decoded decoded = ReadCodePage(old_bytes);
  const std::u32string text = ReadComposed(new_text);
  const Folded old_line = FoldLineEnds(decoded.characters);
  const Folded new_line = FoldLineEnds(text);
  const std::size_t old_size = old_line.characters.size();
  const std::size_t new_size = new_line.characters.size();
  const std::size_t head = CommonStart(old_line.characters, new_line.characters);
  const std::size_t tail = CommonEnd(std::u32string_view(old_line.characters).substr(head),
                                     std::u32string_view(new_line.characters).substr(head));

  const auto old_start = [&](std::size_t i) { return decoded.starts[old_line.places[i]]; };
  const std::size_t head_end = old_start(head);
  Encoded result{std::string(old_bytes.substr(0, head_end)), ""};
  Encoded rest = Encode(UnfoldLineEnds(
      std::u32string_view(new_line.characters).substr(head, new_size - tail - head)));
  rest.bytes += old_bytes.substr(old_start(old_size - tail));
  const bool ends_in_lone_lead =
      head > 0 && head_end - old_start(head - 1) == 1 && IsLeadByte(result.bytes.back());
  if (ends_in_lone_lead && !rest.bytes.empty() && IsTrailByte(rest.bytes[0])) {
    result.bytes.pop_back();
    AppendUtf8(result.refused, kReplacementCharacter);
  }
  // Two line ends that meet now must not become one.
  if (result.bytes.ends_with('\r') && rest.bytes.starts_with('\n')) result.bytes += '\n';
  result.bytes += rest.bytes;
  result.refused += rest.refused;
  return result;
}

}  // namespace orreryui
