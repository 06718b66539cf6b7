#include "appearance/map_type_settings.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace orreryui {
namespace {

TEST(MapTypeSettingsTest, ANumberComesApartIntoItsParts) {
  struct Case {
    int kind, fill, coast;
    // Map kind, archipelago projection; prefecture projection, tint; coastlines of the kinds 3 and
    // 1, method.
    std::vector<int> parts;
  };
  const Case cases[] = {
      {21, 10001, 50102, {1, 1, 1, 1, 5, 1, 2}},
      {0, 0, 0, {0, 0, 0, 0, 0, 0, 0}},
      {3, 9900, 200006, {3, 0, 0, 0, 20, 0, 6}},
      {12, 1, 2000, {2, 1, 0, 1, 0, 20, 0}},
      {39, 19999, 99, {9, 3, 1, 99, 0, 0, 99}},
      {-21, -10001, -50102, {-1, -2, -1, -1, -5, -1, -2}},
      {INT_MAX, INT_MAX, INT_MAX, {7, 214748364, 214748, 47, 214748, 36, 47}},
      {INT_MIN, INT_MIN, INT_MIN, {-8, -214748364, -214748, -48, -214748, -36, -48}},
  };
  for (const Case& c : cases) {
    const MapTypeSettings s = UnpackMapType(c.kind, c.fill, c.coast);
    EXPECT_EQ((std::vector<int>{s.m_nMapKind, s.m_nJapanProjection, s.m_nPrefProjection, s.m_nTint,
                                s.m_nCoastPref, s.m_nCoastTopo, s.m_nMethod}),
              c.parts)
        << c.kind << " " << c.fill << " " << c.coast;
  }
}

TEST(MapTypeSettingsTest, TheHostCountsTheProjectionOfTheArchipelagoItsOwnWay) {
  for (const auto& [given, returned] :
       {std::pair(0, 0), {1, 2}, {2, 2}, {3, 3}, {-1, -1}, {-2, -2}}) {
    EXPECT_EQ(HostProjection(UnpackMapType(given * 10, 0, 0).m_nJapanProjection), returned);
  }
}

TEST(MapTypeSettingsTest, AllButTheCoastlineMakesADifference) {
  const MapTypeSettings given;
  for (int MapTypeSettings::*field :
       {&MapTypeSettings::m_nPalette, &MapTypeSettings::m_nMapKind, &MapTypeSettings::m_nTint,
        &MapTypeSettings::m_nMethod, &MapTypeSettings::m_nPrefProjection,
        &MapTypeSettings::m_nJapanProjection}) {
    MapTypeSettings other;
    other.*field = 1;
    EXPECT_TRUE(MapTypeDiffers(given, other));
    EXPECT_FALSE(MapTypeDiffers(other, other));
  }
  MapTypeSettings region;
  region.m_strRegion = "1";
  EXPECT_TRUE(MapTypeDiffers(given, region));

  MapTypeSettings coast;
  coast.m_nCoastTopo = coast.m_nCoastPref = 1;
  EXPECT_FALSE(MapTypeDiffers(given, coast));
}

TEST(MapTypeSettingsTest, TheCoastlineFollowsKindAndFill) {
  constexpr int MapTypeSettings::*kNone = nullptr;
  constexpr auto kTopo = &MapTypeSettings::m_nCoastTopo;
  constexpr auto kPref = &MapTypeSettings::m_nCoastPref;
  struct Case {
    int kind, tint, on_tint;
    int MapTypeSettings::*field;
  };
  const Case cases[] = {
      {1, 0, 0, kTopo}, {1, 0, 1, kTopo}, {1, 1, 0, kNone}, {1, 1, 1, kTopo}, {1, 1, 2, kNone},
      {3, 0, 0, kPref}, {3, 0, 1, kPref}, {3, 1, 0, kNone}, {3, 1, 1, kPref}, {2, 0, 0, kNone},
      {2, 0, 1, kNone}, {2, 1, 1, kNone}, {0, 0, 1, kNone}, {4, 1, 1, kNone},
  };
  for (const Case& c : cases) {
    MapTypeSettings settings;
    settings.m_nMapKind = c.kind;
    settings.m_nTint = c.tint;
    settings.m_nCoastOnTint = c.on_tint;
    EXPECT_TRUE(CoastlineOf(settings) == c.field) << c.kind << c.tint << c.on_tint;
  }
}

}  // namespace
}  // namespace orreryui
