#include "appearance/region_string.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/strings/japanese_literal.h"

namespace orreryui {
namespace {

std::string Zeros(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += "0|";
  return text;
}

RegionState Slots(std::initializer_list<std::pair<std::size_t, int>> slots) {
  RegionState state = {};
  for (const auto& [slot, value] : slots) state[slot] = value;
  return state;
}

TEST(RegionStringTest, AnyTextDecodes) {
  const std::string tokyo = Zeros(13) + "1|" + Zeros(34);
  struct Case {
    std::string text;
    RegionState state;
    bool single;
  };
  const Case cases[] = {
      {"", {}, false},
      {tokyo + "1", Slots({{13, 1}}), true},
      {tokyo + "0", Slots({{13, 1}}), false},
      {tokyo, Slots({{13, 1}}), false},
      {tokyo + "1|", Slots({{13, 1}}), false},
      {"0|1|", Slots({{1, 1}}), false},
      {"0|1|1", Slots({{1, 1}}), true},
      {"1", {}, true},
      {tokyo + Zeros(12) + "1", Slots({{13, 1}}), false},
      {"2|-1| 7|1x|" + Zeros(44) + "1", Slots({{0, 2}, {1, -1}, {2, 7}, {3, 1}}), true},
      {std::string("東京||x1|1|"_sj) + Zeros(44) + "1", Slots({{3, 1}}), true},
      {std::string("ー1|1|"_sj) + Zeros(46) + "1", Slots({{1, 1}}), true},
  };
  for (const Case& c : cases) {
    const Region region = DecodeRegion(c.text.c_str());
    EXPECT_EQ(region.state, c.state) << c.text;
    EXPECT_EQ(region.single, c.single) << c.text;
  }
}

}  // namespace
}  // namespace orreryui
