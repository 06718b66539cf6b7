#include "platform/strings/japanese_literal.h"

#include <string_view>

#include <gtest/gtest.h>

#include "platform/strings/code_page_932.h"

namespace orreryui {
namespace {

static_assert(std::string_view("配色"_sj) == "\x94\x7A\x90\x46");

TEST(JapaneseLiteral, ConvertsAsTheProgramDoes) {
  constexpr char kText[] = "！～￢―∥§ⅰⅠ㈱℡∵纊黑髙﨑弌熙\uE000\uE757ｱﾞ\\~\t\r\n";
  EXPECT_EQ(FromUtf8(kText).bytes, "！～￢―∥§ⅰⅠ㈱℡∵纊黑髙﨑弌熙\uE000\uE757ｱﾞ\\~\t\r\n"_sj);
  EXPECT_EQ(FromUtf8(kText).refused, "");
}

}  // namespace
}  // namespace orreryui
