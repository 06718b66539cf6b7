#include "appearance/palette_file.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/strings/japanese_literal.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

constexpr char kFile[] = "Orbis1.plt";

using Rows = std::vector<std::pair<int, COLORREF>>;  // levels and colours

class PaletteFileTest : public testing::Test {
 protected:
  CString Path() const { return folder.Argument() + kFile; }

  Rows Read(const std::string& text) const {
    folder.Write(kFile, text);
    const PalettePoints points = ReadPalette(Path()).value();
    Rows rows;
    for (const auto& [level, colour] : points) rows.emplace_back(level, colour);
    return rows;
  }

  TestFolder folder;
};

TEST(LevelTest, GoesInStepsOfFifteenMetresWithTwoExceptions) {
  const std::pair<int, int> cases[] = {
      {0, 0},      {1, 1},      {2, 0},      {14, 0},     {15, 1},     {100, 6},    {200, 13},
      {500, 33},   {1000, 66},  {1500, 100}, {2000, 133}, {2500, 166}, {3000, 200}, {3839, 255},
      {3840, 256}, {4000, 255}, {9999, 666}, {-1, 0},     {-15, -1}};
  for (const auto& [elevation, level] : cases) EXPECT_EQ(LevelOf(elevation), level) << elevation;
}

TEST_F(PaletteFileTest, ReadsRowsAtTheirColumns) {
  const std::pair<std::string, Rows> cases[] = {
      {"", {}},
      {"\n\r\n; 100  60 200  80\r\n", {}},
      {"1500 120 200  80       1,500m\r\n", {{100, 0x50C878}}},
      {" 100  60 200  80       100m", {{6, 0x50C83C}}},
      {";" + std::string(97, 'c') + "\r\n", {}},
      {";" + std::string(97, 'c') + " 100  60 200  80\r\n", {{6, 0x50C83C}}},
      {"1500x120x200x 80999", {{100, 0x50C878}}},
      {"1500 120", {{100, 0x000078}}},
      {"text txt txt txt\n\x81\x40\n", {{0, 0}, {0, 0}}},
      {" 100 256  -1 999\n", {{6, 0xFF00FF}}},
      {"3840   1   1   1\n9999   1   1   1\n -15   1   1   1\n", {}},
      {"  -1   1   1   1\n4000   2   2   2\n", {{0, 0x010101}, {255, 0x020202}}},
  };
  for (const auto& [text, rows] : cases) EXPECT_EQ(Read(text), rows) << text;
}

TEST_F(PaletteFileTest, TakesTheFirst256RowsThatLieOnALevel) {
  std::string text = "3840   9   9   9\n";
  for (int i = 0; i < 300; ++i) text += " 100   1   1 " + std::to_string(100 + i % 100) + "\n";
  const auto points = Read(text);
  ASSERT_EQ(points.size(), 256u);
  EXPECT_EQ(points.back().second, ColourOf(1, 1, 100 + 55));
}

TEST_F(PaletteFileTest, WhatIsNoFileHasNoRows) {
  EXPECT_FALSE(ReadPalette(Path()));
  EXPECT_FALSE(ReadPalette(folder.Argument()));
  EXPECT_FALSE(ReadPalette(""));
}

TEST(ExactColoursTest, TheLastPointOfALevelCountsAndOthersAreBlack) {
  const LevelColours colours = ExactColours({{80, 0x111111}, {6, 0x222222}, {80, 0x333333}});
  EXPECT_EQ(colours[80], 0x333333u);
  EXPECT_EQ(colours[6], 0x222222u);
  EXPECT_EQ(colours[7], kBlack);
}

TEST(InterpolatedColoursTest, RunsFromPointToPointInFileOrder) {
  const COLORREF white = 0xFFFFFF;
  const struct {
    const char* what;
    PalettePoints points;
    std::vector<std::pair<std::size_t, COLORREF>> levels;
  } cases[] = {
      {"no point", {}, {{0, kBlack}, {255, kBlack}}},
      {"one point", {{6, white}}, {{6, kBlack}}},
      {"up", {{0, 0}, {10, ColourOf(255, 0, 0)}}, {{0, 0}, {5, 127}, {9, 229}, {10, 255}, {11, 0}}},
      {"channels apart",
       {{0, ColourOf(255, 0, 10)}, {10, ColourOf(0, 100, 10)}},
       {{5, ColourOf(127, 50, 10)}, {1, ColourOf(229, 10, 10)}}},
      {"a later pair replaces the shared levels",
       {{0, 0}, {20, 200}, {10, 0}, {30, 200}},
       {{9, 90}, {10, 0}, {15, 50}, {20, 100}, {30, 200}}},
      {"falling elevations", {{255, white}, {0, 0}}, {{0, 0}, {51, 0x333333}, {255, white}}},
      {"two on one level", {{0, 0}, {10, 100}, {10, 7}, {20, 17}}, {{9, 90}, {10, 7}, {15, 12}}},
      {"all on one level", {{10, 1}, {10, 2}, {10, 3}}, {{9, 0}, {10, 3}, {11, 0}}},
  };
  for (const auto& expected : cases) {
    const LevelColours colours = InterpolatedColours(expected.points);
    for (const auto& [level, colour] : expected.levels) {
      EXPECT_EQ(colours[level], colour) << expected.what << ", level " << level;
    }
  }
}

TEST_F(PaletteFileTest, WritesEachByteAtItsPlace) {
  RowColours colours{};
  for (std::size_t i = 0; i < colours.size(); ++i) {
    colours[i] = ColourOf(static_cast<int>(i), 100, 255);
  }
  const char* const expected =
      ";配色|表  /p/Orbis1.plt  \r\n"
      "   0   0 100 255    青（海域）  1:15\r\n"_sj
      "   1   1 100 255         0m\r\n"
      " 100   2 100 255       100m\r\n"
      " 200   3 100 255       200m\r\n"
      " 500   4 100 255       500m\r\n"
      "1000   5 100 255     1,000m\r\n"
      "1500   6 100 255     1,500m\r\n"
      "2000   7 100 255     2,000m\r\n"
      "2500   8 100 255     2,500m\r\n"
      "3000   9 100 255     3,000m\r\n"
      "4000  10 100 255     4,000m\r\n";
  EXPECT_EQ(PaletteText("/p/Orbis1.plt", "配色|表"_sj, colours), expected);
}

}  // namespace
}  // namespace orreryui
