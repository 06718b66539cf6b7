#include "platform/strings/code_page_932.h"

#include <map>
#include <string>

#include <gtest/gtest.h>
#include <orreryui/cstring.h>

namespace orreryui {
namespace {

using namespace detail;

constexpr char kReplacement[] = "\uFFFD";
constexpr std::u32string_view kNeighbours = U"\u301C\u2212\u2016\u00A2\u00A3\u00AC\u2014";

std::string Bytes(int code) {
  std::string bytes;
  if (code > 0xFF) bytes += static_cast<char>(code >> 8);
  return bytes + static_cast<char>(code & 0xFF);
}

// The counts are those of the published table, and the digest was reckoned from the converter of
// another system.
TEST(CodePage932, TheWholeTableComesBackButForThePublishedDoubles) {
  int assigned = 0;
  int user_defined = 0;
  std::map<int, int> changed;  // by lead byte
  std::uint64_t digest = 0;
  for (int code = 0x8100; code < 0xFD00; ++code) {
    const std::string bytes = Bytes(code);
    if (CharacterLength(bytes[0], bytes[1]) == 1) continue;
    const std::string text = ToUtf8(bytes);
    if (text == kReplacement) continue;
    ++(code >= 0xF000 && code < 0xFA00 ? user_defined : assigned);
    std::string_view rest = text;
    digest = digest * 31 + TakeUtf8(rest);
    EXPECT_TRUE(rest.empty());
    const std::string back = FromUtf8(text).bytes;
    if (back == bytes) continue;
    ++changed[code >> 8];
    EXPECT_EQ(ToUtf8(back), text);
  }
  EXPECT_EQ(assigned, 7724);
  EXPECT_EQ(user_defined, 1880);
  // Nine mathematical signs of NEC's row 13, all of NEC's selection, fifteen of IBM's extension.
  EXPECT_EQ(changed, (std::map<int, int>{{0x87, 9}, {0xED, 188}, {0xEE, 186}, {0xFA, 15}}));
  EXPECT_EQ(digest, 18096745514608605520u);
}

TEST(CodePage932, SingleBytesHaveCharactersOfTheirOwn) {
  EXPECT_EQ(ToUtf8("\\~\x80\xA0\xA1\xDF\xFD\xFE\xFF"), "\\~\u0080\u00A0｡ﾟ\uF8F1\uF8F2\uF8F3");
}

TEST(CodePage932, TheWayBackPrefersJisThenNecRow13ThenIbm) {
  const std::map<int, int> samples = {
      {0x8790, 0x81E0}, {0x8795, 0x81E3}, {0x879C, 0x81BE}, {0xEEF9, 0x81CA}, {0xFA54, 0x81CA},
      {0xFA5B, 0x81E6}, {0xFA4A, 0x8754}, {0xFA58, 0x878A}, {0xED40, 0xFA5C}, {0xEEEC, 0xFC4B},
      {0xEEEF, 0xFA40}, {0xEEFA, 0xFA55}, {0xEEFC, 0xFA57},
  };
  for (const auto& [code, back] : samples) {
    EXPECT_EQ(FromUtf8(ToUtf8(Bytes(code))).bytes, Bytes(back)) << code;
  }
}

TEST(CodePage932, TheTableAndTheTablesBuiltFromItAgree) {
  for (char32_t character = 1; character < 0x10000; ++character) {
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    if (surrogate || kNeighbours.find(character) != std::u32string_view::npos) continue;
    const int code = CodeOf(character);
    std::string text;
    AppendUtf8(text, character);
    ASSERT_EQ(FromUtf8(text).refused.empty(), code != kNoCode) << text;
    if (code == kNoCode) continue;
    ASSERT_EQ(ToUtf8(Bytes(code)), text);
    ASSERT_EQ(FromUtf8(text).bytes, Bytes(code)) << text;
  }
  EXPECT_EQ(CodeOf(0x10000 + U'亜'), kNoCode);
}

TEST(CodePage932, DecodesBrokenTextByTheLeadByteRule) {
  EXPECT_EQ(ToUtf8("a\x81\xAD"
                   "b"),
            "a\uFFFDb");  // an unassigned pair
  EXPECT_EQ(ToUtf8("\x83 A"), "\uFFFD A");
  EXPECT_EQ(ToUtf8("\x83\n\x9F?\xE0\xFD\xFC"), "\uFFFD\n\uFFFD?\uFFFD\uF8F1\uFFFD");
  EXPECT_EQ(ToUtf8("\x83\x83"), "ャ");
  EXPECT_EQ(ToUtf8("\x83\x83\x83"), "ャ\uFFFD");
  EXPECT_EQ(ToUtf8("\x81\x7F"), "\uFFFD\x7F");
  EXPECT_EQ(ToUtf8(std::string("\x83\0x", 3)), std::string("\uFFFD\0x", 5));
  EXPECT_EQ(FromUtf8(std::string("a\0あ\0", 6)).bytes, std::string("a\0\x82\xA0\0", 5));
}

TEST(CodePage932, IsForgivingToTypedText) {
  EXPECT_EQ(FromUtf8("\u301C\u2212\u2016\u00A2\u00A3\u00AC\u2014").bytes,
            "\x81\x60\x81\x7C\x81\x61\x81\x91\x81\x92\x81\xCA\x81\x5C");
  EXPECT_EQ(FromUtf8("か\u3099は\u3099は\u309Aハ\u309Aウ\u3099ゝ\u3099ヽ\u3099").bytes,
            FromUtf8("がばぱパヴゞヾ").bytes);
  EXPECT_EQ(FromUtf8("ｶ\uFF9E").bytes, "\xB6\xDE");
}

TEST(CodePage932, RefusesWhatItLacksAndNeverWritesAQuestionMark) {
  const Encoded mixed = FromUtf8("a\u00A5鎌😀é倉");
  EXPECT_EQ(mixed.bytes, "a\x8A\x99\x91\x71");
  EXPECT_EQ(mixed.refused, "\u00A5😀é");
  // Marks that join nothing, and kana that the code page lacks when joined.
  const Encoded marks = FromUtf8("\u3099あ\u3099か\u309Aワ\u3099う\u3099");
  EXPECT_EQ(marks.bytes, "\x82\xA0\x82\xA9");
  EXPECT_EQ(marks.refused, "\u3099\u3099\u309Aヷゔ");
}

TEST(CodePage932, RefusesMalformedUtf8) {
  for (const char* bad : {"\x80", "\xC3", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF8",
                          "\xF4\x90\x80\x80", "\xE3\x81", "\xF0\x9F\x98"}) {
    const Encoded encoded = FromUtf8(std::string("a") + bad + "b");
    EXPECT_EQ(encoded.bytes, "ab");
    std::string expected;
    for (const char* byte = bad; *byte; ++byte) expected += kReplacement;
    EXPECT_EQ(encoded.refused, expected);
  }
}

TEST(MergeEdit, KeepsTheBytesThatTheUserDidNotTouch) {
  // A code that is only read (it comes back as FA5C), and an unassigned one.
  const std::string read("\xED\x40");
  const std::string unassigned("\x81\xAD");
  const struct {
    std::string old_bytes, new_text, bytes, refused;
  } edits[] = {
      {"", "配", "\x94\x7A", ""},
      {read, "纊", read, ""},
      {read, "纊a", read + "a", ""},
      {read, "a纊", "a" + read, ""},
      {read, "纊纊", read + "\xFA\x5C", ""},
      {read + "b" + read, "纊配纊", read + "\x94\x7A" + read, ""},
      {unassigned + "ab", "\uFFFDb", unassigned + "b", ""},
      {"ab" + unassigned, "axb\uFFFD", "axb" + unassigned, ""},
      {"aa", "aaa", "aaa", ""},
      {"abc", "a😀c", "ac", "😀"},
      {"\x82\xA9x", "か\u3099x", "\x82\xAAx", ""},
      // A lead byte alone never swallows what follows, be it a letter or a lead byte.
      {"\x83 A", "\uFFFDA", "A", "\uFFFD"},
      {"\x83", "\uFFFDA", "A", "\uFFFD"},
      {"\x83", "\uFFFD亜", "\x88\x9F", "\uFFFD"},
      {"\x83", "\uFFFD1", std::string("\x83") + "1", ""},  // a digit is no trail byte
      {"\x83\x41 B", "アB", std::string("\x83\x41") + "B", ""},
  };
  for (const auto& [old_bytes, new_text, bytes, refused] : edits) {
    const Encoded merged = MergeEdit(old_bytes, new_text);
    EXPECT_EQ(merged.bytes, bytes) << new_text;
    EXPECT_EQ(merged.refused, refused) << new_text;
  }
}

TEST(MergeEdit, LinesThatStayKeepTheLineEndsThatTheyHave) {
  EXPECT_EQ(MergeEdit("a\nb\rc\r\nd", "a\r\nb\r\nc\r\nd").bytes, "a\nb\rc\r\nd");
  EXPECT_EQ(MergeEdit("a\nb\nc", "a\r\nbx\r\nc").bytes, "a\nbx\nc");
  EXPECT_EQ(MergeEdit("a\nb", "a\r\n\r\nb").bytes, "a\n\r\nb");
  EXPECT_EQ(MergeEdit("a\nb", "ab").bytes, "ab");
  EXPECT_EQ(MergeEdit("\rx\n", "\r\n\r\n").bytes, "\r\n\n");
}

}  // namespace
}  // namespace orreryui
