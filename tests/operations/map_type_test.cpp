#include <orreryui/orreryui.h>

#include "tests/support/play.h"

namespace orreryui {
namespace {

constexpr int kTopographic = 1004, kArchipelago = 1005, kPrefectures = 1006;
constexpr int kBlank = 1112, kTint = 1113;
constexpr int kPalette = 1116, kMethod = 1117, kCoastline = 1014;
constexpr int kPrefProjection = 1034, kJapanProjection = 1035;
constexpr int kWhole = 1484, kTokyo = kWhole + 13, kKanagawa = kWhole + 14;

constexpr char kBlankText[] = "白地図";

std::string Zeros(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += "0|";
  return text;
}

// What the host passes in.
struct Given {
  int palette = 1;
  int kind = 1;
  int fill = 1;
  int coast = 50102;  // 5 for kind 3, 1 for kind 1, method 2
  int coast_on_tint = 1;
  std::string region = "";
};

class MapTypeTest : public testing::Test {
 protected:
  MapTypeTest() {
    folder.Write("PLTTFILE.DAT",
                 std::string("自然$a.plt\r\n冬$b.plt\r\n;夏$c.plt\r\n\r\n秋$d\r\n"_sj));
    script.OpensDialog(159);
  }

  // The result in UTF-8.
  std::string Call(const Given& given) {
    return ToUtf8(Play(script, [&] {
      return OnMapTypeSet(given.palette, given.kind, given.fill, given.coast, given.coast_on_tint,
                          folder.Argument(), given.region.c_str());
    }));
  }

  // Looks which kind is on: 1 to 3, or 0 for none.
  void ShowsKind(int kind) {
    for (int i = 1; i <= 3; ++i) script.ShowsCheck(kTopographic + i - 1, i == kind);
  }
  void ShowsTint(bool tint) { script.ShowsCheck(kBlank, !tint).ShowsCheck(kTint, tint); }
  void ShowsBlank() {
    ShowsTint(false);
    script.Shows(kPalette, kBlankText).Shows(kMethod, "");
  }

  TestFolder folder;
  ScriptFrontEnd script;
};

TEST_F(MapTypeTest, ShowsTheSettingsAndReturnsThemUnchanged) {
  folder.Write("PLTTFILE.DAT", std::string("自然$\r\n冬$\r\n夏\r\n表$表\r\n"_sj));
  script.ShowsTitle("  地図の種類と配色").ShowsRows(kPalette, {"自然", "冬", "", "表"});
  script.Shows(kPalette, "表").ShowsSelection(kPalette, 3);
  script.Shows(kMethod, "段彩(高度 50m間隔)").Shows(kCoastline, "紫");
  script.ShowsSelection(kPrefProjection, 1).ShowsSelection(kJapanProjection, 1);
  ShowsKind(1);
  ShowsTint(true);
  script.Enter();
  const std::string region = std::string("東|京"_sj);
  EXPECT_EQ(Call({3, 21, 10001, 50102, 1, region}), "-1|3|1|1|2|0|1|1|5|2|東|京");
}

TEST_F(MapTypeTest, EveryLineOfTheListUpToAnEmptyOneIsAPalette) {
  std::string list;
  std::vector<std::string> names;
  for (int i = 0; i < 30; ++i) {
    names.push_back("name" + std::to_string(i));
    list += names.back() + "$file\n";
  }
  folder.Write("PLTTFILE.DAT", list + "\nunseen$file\n");
  script.ShowsRows(kPalette, names).ShowsSelection(kPalette, 25).Pick(kPalette, 29).Click(1);
  EXPECT_EQ(Call({.palette = 25}), "1|29|1|1|2|0|0|1|5|0|");
}

TEST_F(MapTypeTest, WithoutAPaletteListNothingIsLost) {
  std::filesystem::remove(folder.Path() / "PLTTFILE.DAT");
  script.ShowsRows(kPalette, {}).ShowsSelection(kPalette, -1).Shows(kPalette, "").Click(1);
  EXPECT_EQ(Call({}), "-1|1|1|1|2|0|0|1|5|0|");
}

TEST_F(MapTypeTest, NumbersThatNoListHoldsComeBackUnchanged) {
  const struct {
    Given given;
    std::string result;
  } cases[] = {
      {{-1, -21, -10001, -50102, -1, "|"}, "-1|-1|-1|-1|-2|0|-1|-1|-5|-2||"},
      {{2147483647, 2147483647, 2147483647, 2147483647, 2147483647, ""},
       "-1|2147483647|7|47|47|0|214748|36|214748|214748364|"},
      {{99, 59, 50001, 219999, 1, "x"}, "-1|99|9|1|99|0|5|99|21|5|x"},
  };
  for (const auto& c : cases) {
    script = ScriptFrontEnd();
    script.OpensDialog(159);
    for (const int id : {kPalette, kMethod, kCoastline, kPrefProjection, kJapanProjection}) {
      script.ShowsSelection(id, -1).Shows(id, "");
    }
    script.ShowsCheck(kTint, true);
    ShowsKind(0);
    script.Click(1);
    EXPECT_EQ(Call(c.given), c.result);
  }
}

TEST_F(MapTypeTest, PaletteAndTintFollowEachOther) {
  ShowsBlank();
  script.Pick(kPalette, 2).Shows(kMethod, "段彩(高度 50m間隔)");
  ShowsTint(true);
  script.Click(kBlank);
  ShowsBlank();
  script.Click(kTint).Shows(kPalette, ";夏").Shows(kMethod, "段彩(高度 50m間隔)");
  script.Pick(kMethod, 6).Pick(kPalette, 0).Shows(kMethod, "段彩(高度500m間隔)").Click(1);
  EXPECT_EQ(Call({.fill = 0}), "1|0|1|1|6|0|0|1|5|0|");
}

TEST_F(MapTypeTest, TheArchipelagoIsOfferedBlank) {
  script.Click(kArchipelago).ShowsSelection(kCoastline, -1);
  ShowsBlank();
  script.Click(kTint).ShowsSelection(kCoastline, -1).Shows(kPalette, kBlankText);
  ShowsTint(false);
  script.Pick(kCoastline, 3).ShowsSelection(kCoastline, -1).Shows(kCoastline, "");
  script.Pick(kPalette, 0).Shows(kPalette, "自然").Shows(kMethod, "段彩(高度 50m間隔)");
  ShowsTint(true);
  ShowsKind(2);
  script.Pick(kJapanProjection, 1).Click(1);
  EXPECT_EQ(Call({}), "1|0|2|1|2|0|0|1|5|2|");
}

TEST_F(MapTypeTest, ClicksOnFillsThatAreNotOfferedLeaveTheTexts) {
  const struct {
    Given given;
    int click;
    bool tint;            // afterwards
    const char* palette;  // before and afterwards
    const char* coastline;
    std::string result;
  } cases[] = {
      {{.kind = 2}, kTint, false, "冬", "", "1|1|2|0|2|0|0|1|5|0|"},
      {{.fill = 2}, kBlank, false, "", "紫", "1|1|1|0|2|0|0|1|5|0|"},
      {{.fill = 2}, kTint, true, "", "紫", "1|1|1|1|2|0|0|1|5|0|"},
      {{.kind = 3, .fill = 99}, kTint, true, "", "黄", "1|1|3|1|2|0|1|1|5|0|"},
      {{.fill = 2}, kArchipelago, false, "", "", "1|1|2|0|2|0|0|1|5|0|"},
      {{.kind = 3, .fill = -1}, kTopographic, true, "", "紫", "1|1|1|-1|2|0|0|1|5|0|"},
  };
  for (const auto& c : cases) {
    const char* const method = "段彩(高度 50m間隔)";
    script = ScriptFrontEnd();
    script.OpensDialog(159).Shows(kPalette, c.palette).Shows(kMethod, method);
    ShowsTint(true);
    script.Click(c.click).Shows(kPalette, c.palette).Shows(kMethod, method);
    script.Shows(kCoastline, c.coastline);
    ShowsTint(c.tint);
    script.Click(1);
    EXPECT_EQ(Call(c.given), c.result) << c.given.kind << " " << c.given.fill;
  }
}

TEST_F(MapTypeTest, APrefectureMapInSansonProjectionIsBlank) {
  script.Does([](ControlSession& session) {
    return session.Layout().focus == kPrefectures ? "" : "the focus is elsewhere";
  });
  script.ShowsSelection(kPrefProjection, 0).Shows(kCoastline, "黄").Click(kTint);
  script.ShowsSelection(kPrefProjection, 1).Shows(kPalette, "冬");
  script.Pick(kPrefProjection, 1);
  ShowsTint(true);
  script.Pick(kPrefProjection, 0);
  ShowsBlank();
  ShowsKind(3);
  script.Click(1);
  EXPECT_EQ(Call({.kind = 3, .fill = 0, .region = "x"}), "-1|1|3|0|2|0|0|1|5|0|x");
}

TEST_F(MapTypeTest, OtherKindsTakeAnyProjection) {
  script.Pick(kPrefProjection, 0).Shows(kPalette, "冬");
  ShowsTint(true);
  script.Click(1);
  EXPECT_EQ(Call({.fill = 10001}), "1|1|1|1|2|0|0|1|5|0|");
  script.OpensDialog(159).Pick(kJapanProjection, 1).Click(1);
  EXPECT_EQ(Call({}), "1|1|1|1|2|0|0|1|5|2|");
}

TEST_F(MapTypeTest, AnotherCoastlineIsNoChange) {
  script.Pick(kCoastline, 20).Click(kTint).Shows(kCoastline, "非表示").Click(kBlank);
  script.Pick(kCoastline, 0).Click(kTint).Click(1);
  EXPECT_EQ(Call({}), "-1|1|1|1|2|0|0|0|5|0|");
}

TEST_F(MapTypeTest, ATintMapMayHaveNoCoastline) {
  script.ShowsSelection(kCoastline, -1).Pick(kCoastline, 8).ShowsSelection(kCoastline, -1);
  script.Click(kBlank).Shows(kCoastline, "黄").Pick(kCoastline, 8).Click(kTint);
  script.ShowsSelection(kCoastline, -1).Click(kTopographic).ShowsSelection(kCoastline, -1);
  script.Click(kBlank).Shows(kCoastline, "紫").Click(1);
  EXPECT_EQ(Call({.kind = 3, .fill = 10001, .coast_on_tint = 0}), "1|1|1|0|2|0|1|1|8|0|");
}

TEST_F(MapTypeTest, PaletteAndProjectionLeaveTheCoastlineAsItIsShown) {
  script.Pick(kPalette, 0).Shows(kCoastline, "黄").ShowsSelection(kPrefProjection, 0);
  ShowsTint(true);
  script.Click(1);
  EXPECT_EQ(Call({.kind = 3, .fill = 0, .coast_on_tint = 0}), "1|0|3|1|2|0|0|1|5|0|");
  script.OpensDialog(159).Pick(kPrefProjection, 0).ShowsSelection(kCoastline, -1);
  ShowsBlank();
  script.Click(1);
  EXPECT_EQ(Call({.kind = 3, .fill = 10001, .coast_on_tint = 0}), "1|1|3|0|2|0|0|1|5|0|");
}

TEST_F(MapTypeTest, ATintMapOfAnyOtherKindShowsThePrefecturesCoastline) {
  script.ShowsSelection(kCoastline, -1).Click(kTint).Shows(kCoastline, "黄").Click(1);
  EXPECT_EQ(Call({.kind = 0}), "-1|1|0|1|2|0|0|1|5|0|");
  script.OpensDialog(159).Click(kTint).ShowsSelection(kCoastline, -1).Click(1);
  EXPECT_EQ(Call({.kind = 0, .coast_on_tint = 2}), "-1|1|0|1|2|0|0|1|5|0|");
}

TEST_F(MapTypeTest, AMethodIsTakenFromABlankMapAndChangesNothingElse) {
  script.Pick(kMethod, 4).Shows(kPalette, kBlankText).Shows(kMethod, "段彩(高度200m間隔)");
  ShowsTint(false);
  script.Click(1);
  EXPECT_EQ(Call({.fill = 0}), "1|1|1|0|4|0|0|1|5|0|");
}

TEST_F(MapTypeTest, ARegionEndsTheWhole) {
  script.Pick(kPalette, 0).Click(kPrefectures);
  script.OpensDialog(179).ShowsTitle(" 都道府県別地図").ShowsCheck(kKanagawa, true);
  script.Click(kTokyo).Click(1);
  EXPECT_EQ(Call({.region = Zeros(14) + "1|" + Zeros(33) + "1"}),
            "1|0|3|1|2|0|1|1|5|0|" + Zeros(13) + "1|" + Zeros(34) + "1");
}

TEST_F(MapTypeTest, SeveralRegionsOfABlankMapComeBackWhereOneMayBeChosen) {
  const std::string both = Zeros(13) + "1|1|" + Zeros(33) + "1";
  script.Click(kPrefectures).OpensDialog(179);
  script.ShowsTitle("  地域選択（国土数値情報データを表示する都道府県）").Click(kTokyo);
  script.Click(kKanagawa).Click(1);
  EXPECT_EQ(Call({.fill = 0}), "1|1|3|0|2|0|0|1|5|0|" + both);

  script.OpensDialog(159).Click(kPrefectures).OpensDialog(179).ShowsTitle(" 都道府県別地図");
  script.ShowsCheck(kTokyo, true).ShowsCheck(kKanagawa, true).Click(kKanagawa);
  script.ShowsCheck(kTokyo, false).ShowsCheck(kKanagawa, true).Click(1);
  EXPECT_EQ(Call({.kind = 3, .fill = 0, .region = both}),
            "1|1|3|0|2|0|0|1|5|0|" + Zeros(14) + "1|" + Zeros(33) + "1");
}

TEST_F(MapTypeTest, TheSameRegionAgainIsNoChange) {
  const std::string region = Zeros(13) + "1|" + Zeros(34) + "1";
  script.Click(kPrefectures).OpensDialog(179).Click(kTokyo).Click(1);
  EXPECT_EQ(Call({.kind = 3, .fill = 10001, .region = region}), "-1|1|3|1|2|0|1|1|5|0|" + region);
}

TEST_F(MapTypeTest, GivingUpTheRegionChangesNothing) {
  script.Click(kPrefectures).OpensDialog(179).Click(kTokyo).Escape();
  ShowsKind(1);
  script.Click(kArchipelago).Click(kPrefectures).OpensDialog(179).Click(2);
  ShowsKind(2);
  script.Click(kTopographic).Click(kTint).Shows(kPalette, "冬").Click(1);
  EXPECT_EQ(Call({.region = "東京"_sj}), "-1|1|1|1|2|0|0|1|5|0|東京");
}

}  // namespace
}  // namespace orreryui
