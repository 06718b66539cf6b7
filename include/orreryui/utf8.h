// Text between code page 932, which the operations and their files speak, and UTF-8. Needs nothing
// but this folder of headers.
//
//   const CString folder = FromUtf8("/home/me/地図/").bytes.c_str();
//   std::puts(ToUtf8(OnDataSourceSet(0, "on", folder)).c_str());
//
// The table is the library's own, and follows the one that Microsoft published. 80, A0, FD, FE and
// FF, which mean nothing, are U+0080, U+00A0 and U+F8F1 to U+F8F3. Of the codes that share a
// character, one is written; the others are only read. The tables for fast conversion are built at
// first use, by one thread if several come at once.
#ifndef ORRERYUI_UTF8_H_
#define ORRERYUI_UTF8_H_

#include <orreryui/detail/code_page_932.h>

namespace orreryui {

// Never fails: what makes no character (an unassigned pair, a lead byte alone) becomes one U+FFFD.
inline std::string ToUtf8(std::string_view bytes) {
  std::size_t ascii = detail::AsciiLength(bytes);
  if (ascii == bytes.size()) return std::string(bytes);
  const detail::Tables& tables = detail::GetTables();
  std::string text(bytes.size() * 3, '\0');
  char* to = text.data();
  while (!bytes.empty()) {
    std::memcpy(to, bytes.data(), ascii);
    to += ascii;
    bytes.remove_prefix(ascii);
    while (!bytes.empty() && static_cast<unsigned char>(bytes[0]) >= 0x80) {
      to = detail::PutUtf8(to, detail::TakeCharacter(tables, bytes));
    }
    ascii = detail::AsciiLength(bytes);
  }
  text.resize(static_cast<std::size_t>(to - text.data()));
  return text;
}
inline std::string ToUtf8(const char* bytes) { return ToUtf8(std::string_view(bytes)); }

// Encodes text that a user typed, a host passes in or a file system gave. Kana that are followed by
// a combining mark of voice are joined with it. Seven characters that other systems use for those
// of this code page are taken for them, such as U+301C for U+FF5E. The yen sign isn't: it doesn't
// become a backslash. What the code page lacks is left out of the bytes and listed.
inline Encoded FromUtf8(std::string_view text) {
  const detail::Tables& tables = detail::GetTables();
  // No character takes more bytes in this code page than in UTF-8.
  Encoded result{std::string(text.size(), '\0'), ""};
  char* to = result.bytes.data();
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t ascii = detail::AsciiLength(rest);
    std::memcpy(to, rest.data(), ascii);
    to += ascii;
    rest.remove_prefix(ascii);
    while (!rest.empty() && static_cast<unsigned char>(rest[0]) >= 0x80) {
      const char32_t character = detail::TakeUtf8(rest);
      if (detail::IsMark(character)) return detail::Encode(detail::ReadComposed(text));
      to = detail::PutCharacter(tables, to, character, result.refused);
    }
  }
  result.bytes.resize(static_cast<std::size_t>(to - result.bytes.data()));
  return result;
}

}  // namespace orreryui

#endif  // ORRERYUI_UTF8_H_
