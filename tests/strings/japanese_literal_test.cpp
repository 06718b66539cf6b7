#include "platform/strings/japanese_literal.h"

#include <string_view>

#include <gtest/gtest.h>
#include <orreryui/cstring.h>

#include "platform/strings/code_page_932.h"

namespace orreryui {
namespace {

struct Row {
  int id;
  const char* label;
};

constexpr Row kRows[] = {{1, "配色"_sj}, {2, "ﾙｰﾄ登録"_sj}, {3, ""_sj}, {4, "鎌倉(計12地点)"_sj}};

static_assert(std::string_view("配色"_sj) == "\x94\x7A\x90\x46");

TEST(JapaneseLiteral, IsTheTextInTheCodePage) {
  EXPECT_STREQ(kRows[0].label, "\x94\x7A\x90\x46");
  EXPECT_EQ(ToUtf8(kRows[1].label), "ﾙｰﾄ登録");
  EXPECT_STREQ(kRows[2].label, "");
  EXPECT_EQ(ToUtf8(kRows[3].label), "鎌倉(計12地点)");
  EXPECT_EQ(CString("ソ　|"_sj).Find('|'), 4);
}

TEST(JapaneseLiteral, ConvertsAsTheProgramDoes) {
  constexpr char kText[] = "！～￢―∥§ⅰⅠ㈱℡∵纊黑髙﨑弌熙\uE000\uE757ｱﾞ\\~\t\r\n";
  EXPECT_EQ(FromUtf8(kText).bytes, "！～￢―∥§ⅰⅠ㈱℡∵纊黑髙﨑弌熙\uE000\uE757ｱﾞ\\~\t\r\n"_sj);
  EXPECT_EQ(FromUtf8(kText).refused, "");
}

}  // namespace
}  // namespace orreryui
