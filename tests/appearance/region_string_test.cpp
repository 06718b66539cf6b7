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
    const char* name;
    std::string text;
    RegionState state;
    bool single;
  };
  const Case cases[] = {
      {"empty", "", {}, false},
      {"one prefecture", tokyo + "1", Slots({{13, 1}}), true},
      {"several may be on", tokyo + "0", Slots({{13, 1}}), false},
      {"no tail", tokyo, Slots({{13, 1}}), false},
      {"a tail that begins with 1", tokyo + "1|", Slots({{13, 1}}), false},
      {"short", "0|1|", Slots({{1, 1}}), false},
      {"short, with the tail", "0|1|1", Slots({{1, 1}}), true},
      {"the tail alone", "1", {}, true},
      {"60 fields", tokyo + Zeros(12) + "1", Slots({{13, 1}}), false},
      {"other numbers", "2|-1| 7|1x|" + Zeros(44) + "1", Slots({{0, 2}, {1, -1}, {2, 7}, {3, 1}}),
       true},
      {"text and empty fields", std::string("東京||x1|1|"_sj) + Zeros(44) + "1", Slots({{3, 1}}),
       true},
      {"a trail byte like the bar", std::string("ー1|1|"_sj) + Zeros(46) + "1", Slots({{1, 1}}),
       true},
  };
  for (const Case& c : cases) {
    const Region region = DecodeRegion(c.text.c_str());
    EXPECT_EQ(region.state, c.state) << c.name;
    EXPECT_EQ(region.single, c.single) << c.name;
  }
}

TEST(RegionStringTest, AnEncodedRegionIsSingle) {
  EXPECT_EQ(EncodeRegion(Slots({{13, 1}})), (Zeros(13) + "1|" + Zeros(34) + "1").c_str());
  EXPECT_EQ(EncodeRegion(Slots({{0, -5}})), ("-5|" + Zeros(47) + "1").c_str());
}

}  // namespace
}  // namespace orreryui
