#include <orreryui/cstring.h>

#include <climits>
#include <string>

#include <gtest/gtest.h>

namespace orreryui {
namespace {

// A full-width blank ends in the byte of '@', katakana so in that of '\', katakana a in that of
// 'A'.
constexpr char kBlank[] = "\x81\x40";
constexpr char kSo[] = "\x83\x5C";
constexpr char kKatakanaA[] = "\x83\x41";

TEST(CString, IsMadeFromText) {
  EXPECT_TRUE(CString().IsEmpty());
  EXPECT_TRUE(CString(nullptr).IsEmpty());
  EXPECT_STREQ(CString("abc", 2), "ab");
  EXPECT_TRUE(CString("abc", -1).IsEmpty());
  EXPECT_TRUE(CString(nullptr, 3).IsEmpty());
  EXPECT_EQ(CString("ab\0cd", 5).GetLength(), 2);
  EXPECT_EQ(CString("abc")[3], '\0');
}

TEST(CString, CopiesAreIndependentAndMovesLeaveNothing) {
  CString first("abc");
  CString copy = first;
  copy += "d";
  EXPECT_EQ(first, "abc");
  const CString moved = std::move(copy);
  EXPECT_EQ(moved, "abcd");
  EXPECT_TRUE(copy.IsEmpty());
  copy = first;
  EXPECT_EQ(copy, first);
  first.Empty();
  EXPECT_TRUE(first.IsEmpty());
}

TEST(CString, MayBeAssignedAndAppendedToItself) {
  CString text("abc");
  const CString& same = text;
  text = same;
  EXPECT_EQ(text, "abc");
  text = static_cast<const char*>(text) + 1;
  EXPECT_EQ(text, "bc");
  text = "xyz";
  for (int i = 0; i < 3; ++i) text += static_cast<const char*>(text) + 1;
  EXPECT_EQ(text, "xyzyzyzyzyzyzyzyz");
  text = "7";
  text.Format("%s%s", static_cast<const char*>(text), static_cast<const char*>(text));
  EXPECT_EQ(text, "77");
}

TEST(CString, IsJoinedAndCompared) {
  const CString ab("ab");
  EXPECT_EQ(ab + CString("c"), "abc");
  EXPECT_EQ(ab + "c", "abc");
  EXPECT_EQ("c" + ab, "cab");
  EXPECT_EQ(ab + '|', "ab|");
  EXPECT_EQ(ab + '\0' + static_cast<const char*>(nullptr), "ab");
  EXPECT_EQ('|' + ab, "|ab");
  EXPECT_TRUE(ab == "ab" && "ab" == ab && ab == CString("ab"));
  EXPECT_TRUE(ab != "AB" && "abc" != ab && ab != CString("a"));
  EXPECT_FALSE(ab != "ab" || "ab" != ab || ab != CString("ab"));
  EXPECT_TRUE(CString() == nullptr);
}

TEST(CString, CutsByBytesWithinItsEnds) {
  const CString text("abcdef");
  EXPECT_EQ(text.Mid(2), "cdef");
  EXPECT_EQ(text.Mid(7), "");
  EXPECT_EQ(text.Mid(-3), "abcdef");
  EXPECT_EQ(text.Mid(2, 3), "cde");
  EXPECT_EQ(text.Mid(-2, 3), "abc");
  EXPECT_EQ(text.Mid(4, INT_MAX), "ef");
  EXPECT_EQ(text.Mid(INT_MAX, INT_MAX), "");
  EXPECT_EQ(text.Mid(2, -1), "");
  EXPECT_EQ(text.Left(-1), "");
  EXPECT_EQ(text.Right(9), "abcdef");
  EXPECT_EQ(text.Right(INT_MIN), "");
  EXPECT_EQ(CString(kSo).Mid(1), "\\");
}

TEST(CString, FindsWholeCharactersOnly) {
  const CString text = CString(kBlank) + kSo + "x@y\\";
  EXPECT_EQ(text.Find('@'), 5);
  EXPECT_EQ(text.Find('\\'), 7);
  EXPECT_EQ(text.Find("@y"), 5);
  EXPECT_EQ(text.Find(kSo), 2);
  EXPECT_EQ(text.Find('\x83'), -1);
  EXPECT_EQ(text.Find('\0'), -1);
  EXPECT_EQ(text.Find(""), 0);
  EXPECT_EQ((CString("a") + kKatakanaA).Find("a\x83"), -1);
  EXPECT_EQ((CString("a") + kKatakanaA).Find("A"), -1);
  EXPECT_EQ(CString("\x83 a").Find(' '), 1);  // a lead byte without its trail byte
  EXPECT_EQ(CString("a\x83").Find('\x83'), 1);
  EXPECT_EQ(CString("aab").Find("ab"), 1);
  EXPECT_EQ(CString("a.jp").Find(".jpg"), -1);  // the end of the text begins like it
}

TEST(CString, ChangesTheCaseOfLettersOnly) {
  CString text = CString("Az@[`{") + kKatakanaA + "\x83\x61\x83\xB1" + "Z";
  text.MakeLower();
  EXPECT_EQ(text, CString("az@[`{") + kKatakanaA + "\x83\x61\x83\xB1" + "z");
  text.MakeUpper();
  EXPECT_EQ(text, CString("AZ@[`{") + kKatakanaA + "\x83\x61\x83\xB1" + "Z");
}

TEST(CString, FormatReplacesTheContent) {
  CString text("old");
  text.Format("%d|%s|", -7, kSo);
  EXPECT_EQ(text, CString("-7|") + kSo + "|");
  text.Format("%500d", 1);
  EXPECT_EQ(text.GetLength(), 500);
  text.Format("%c", 0);
  EXPECT_TRUE(text.IsEmpty());
  text.Format("a%cb", 0);
  EXPECT_EQ(text, "a");
}

}  // namespace
}  // namespace orreryui
