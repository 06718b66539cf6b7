// The list of points and the registration of a map, by their operation on real files.
#include <orreryui/orreryui.h>

#include <algorithm>

#include "tests/support/play.h"
#include "tests/support/stopped_clock.h"

namespace orreryui {
namespace {

constexpr char kMember[] = "G04C2513.5R";

// The list of a host with points from p1 on.
std::string Points(int count, const std::string& end = "999|") {
  std::string list;
  for (int i = 1; i <= count; ++i) list += "p" + std::to_string(i) + " 1 2 i F.txt|";
  return list + end;
}

class RouteRegistTest : public testing::Test {
 protected:
  struct Given {
    std::string list = Points(2);
    const char* mode = "RouteMap";
    int shape = 0;
    int size = 0;
    const char* display = "AUTO";
  };

  // The result in UTF-8. The display that the mode doesn't use is "other".
  std::string Call(ScriptFrontEnd& visit, const Given& given) const {
    const CString mode = FromUtf8(given.mode).bytes.c_str();
    const bool takes_list = mode == "RouteMap" || mode == "AreaMap";
    return ToUtf8(Play(visit, [&] {
      return OnRouteRegistModule(
          given.shape, given.size, folder.Argument(), "", "", mode, "頭1"_sj, "頭2"_sj, "139", "35",
          "35.3", "139.5", takes_list ? given.display : "other",
          takes_list ? "other" : given.display, FromUtf8(given.list).bytes.c_str());
    }));
  }
  std::string Call(ScriptFrontEnd& visit) const { return Call(visit, Given()); }

  std::string Entry(const std::string& name, const std::string& member = kMember) const {
    return FromUtf8(name).bytes + "@" + folder.PathOf(member) + "\r\n";
  }

  TestFolder folder;
  StoppedClock clock;
  ScopedClock time{clock};
};

TEST_F(RouteRegistTest, TheModeSaysWhatIsShownAndWhereThePointsAre) {
  struct Look {
    const char *title, *label, *button, *group;
  };
  const Look route = {"      ﾙｰﾄﾏｯﾌﾟに登録されたﾌｧｲﾙ", "", "ﾙｰﾄ登録", "ﾙｰﾄﾏｯﾌﾟの表示方法"};
  const Look area = {" エリア内のﾌｧｲﾙ (中心 N35.3, E139.5)", "", "ｴﾘｱ登録", "ｴﾘｱﾏｯﾌﾟの表示方法"};
  const Look album = {"        ｱﾙﾊﾞﾑに登録されたﾌｧｲﾙ", "ｱﾙﾊﾞﾑ", "****", "ｱﾙﾊﾞﾑの表示方法"};
  const struct {
    std::string mode;
    int shape, size;
    const Look& look;
    const char* caption2;
    std::vector<std::string> rows;
  } cases[] = {
      {"RouteMap", 0, 9, route, "", {"p1#i"}},
      {"AreaMap", 0, 11, area, "半径5kmの圏内", {"p1#i"}},
      {"AreaMap", -1, 11, area, "辺長11kmの圏内", {"p1#i"}},
      {folder.PathOf("a.RouteMap"), 0, 9, route, "", {"r#i"}},
      {"RETURN", 0, 9, route, "", {}},
      {folder.PathOf("AreaMap.alb"), 1, 9, album, "頭2", {"a#i"}},
      {"routemap", 1, 9, album, "頭2", {}},
  };
  folder.Write("a.RouteMap", "r 1 2 i f\r\n");
  folder.Write("AreaMap.alb",
               ";c\r\nMt 1 2 i f\r\n\r\na 1 2 i f\r\n;b 1 2 i f\r\n999\r\nz 1 2 i f\r\n");
  for (const auto& c : cases) {
    SCOPED_TRACE(c.mode);
    const bool takes_list = c.mode == "RouteMap" || c.mode == "AreaMap";
    ScriptFrontEnd visit;
    visit.OpensDialog(149).ShowsTitle(c.look.title).Shows(1061, c.look.label).Shows(1034, "頭1");
    visit.Shows(1035, c.caption2).Shows(1062, c.look.button).Shows(1060, c.look.group);
    visit.ShowsRows(128, c.rows).Shows(131, std::to_string(c.rows.size()) + "件");
    visit.ShowsCheck(136, true).ShowsCheck(137, false).Click(1062);
    if (takes_list) visit.OpensDialog(153).Escape();
    visit.Focus(128).Enter();
    EXPECT_EQ(Call(visit, {Points(1), c.mode.c_str(), c.shape, c.size}), "AUTO");
  }
  EXPECT_EQ(folder.Content().size(), 2u) << "nothing was stored";
}

TEST_F(RouteRegistTest, TheDisplayIsTheHostsWordUntilTheUserChooses) {
  const struct {
    const char* given;
    int click;
    bool automatic;
    const char* chosen;
  } cases[] = {{"AUTO", 0, true, "AUTO"},      {"MANUAL", 0, false, "MANUAL"},
               {"auto|", 0, false, "auto|"},   {"", 0, false, ""},
               {"MANUAL", 136, false, "AUTO"}, {"AUTO", 137, true, "MANUAL"},
               {"AUTO", 136, true, "AUTO"}};
  for (const auto& [given, click, automatic, chosen] : cases) {
    ScriptFrontEnd visit;
    visit.OpensDialog(149).ShowsCheck(136, automatic).ShowsCheck(137, !automatic);
    if (click) visit.Click(click);
    visit.Click(103);
    EXPECT_EQ(Call(visit, {.display = given}), chosen);
  }
  ScriptFrontEnd escape;
  escape.OpensDialog(149).Click(137).Escape();
  EXPECT_EQ(Call(escape), "cancel");
}

TEST_F(RouteRegistTest, ARowShowsItsFields) {
  ScriptFrontEnd visit;
  visit.OpensDialog(149).ShowsRows(128, {"ァー#表ポ", "b#j", "#"}).ShowsSelection(128, 0);
  visit.Shows(106, "ァー").Shows(104, "表ポ").Shows(105, "T.TXT").Shows(101, "P.Jpg");
  visit.Shows(107, "35.3").Shows(108, "139.5").Shows(131, "3件").Pick(128, 1).Shows(131, "2/3");
  visit.Shows(106, "b").Shows(104, "j").Shows(105, "f").Shows(101, "").Shows(107, "1");
  visit.Type(106, "dropped").Pick(128, 2).Shows(131, "3/3").Shows(106, "").Shows(107, "");
  visit.Click(2);
  EXPECT_EQ(Call(visit, {"ァー 35.3 139.5 表ポ P.Jpg T.TXT|b 1 2 j f||999|x 1 2 3|"}), "cancel");
}

TEST_F(RouteRegistTest, AListEndsAtItsEndMarkerItsLastBarOrAHundredPoints) {
  const std::pair<std::string, int> cases[] = {
      {"999|", 0},      {"999", 0},         {Points(2, ""), 2}, {Points(2, "x 1 2"), 2},
      {Points(99), 99}, {Points(100), 100}, {Points(101), 100}, {Points(1, "9990|999|"), 2}};
  for (const auto& [list, count] : cases) {
    const std::string text = std::to_string(count);
    ScriptFrontEnd visit;
    visit.OpensDialog(149).Shows(131, text + "件").ShowsSelection(128, count ? 0 : -1);
    visit.Shows(106, count ? "p1" : "").Click(1062);
    visit.OpensDialog(153).Shows(1064, text + "地点");
    visit.Shows(1065, (count ? "p1(計" : "(計") + text + "地点)").Click(1);
    visit.Shows(131, text + "件").Click(103);
    folder.Lay({});
    EXPECT_EQ(Call(visit, {list}), "AUTO");
    const auto member = folder.Read(kMember);
    ASSERT_TRUE(member);
    EXPECT_EQ(std::count(member->begin(), member->end(), '\n'), count);
    EXPECT_EQ(folder.Read("RoutMstr.dat"), Entry((count ? "p1(計" : "(計") + text + "地点)"));
  }
}

TEST_F(RouteRegistTest, AMapIsStoredAsItIsAndShownInLowerCaseThen) {
  const std::string list =
      "鎌倉 35.3 139.5 寺|P 1 2 Item C:\\A.JPG C:\\A.TXT|q 1 2 i a.jpg b.jpg|999|";
  ScriptFrontEnd visit;
  visit.OpensDialog(149).Click(137).Pick(128, 1).Click(1062).OpensDialog(153);
  visit.ShowsTitle("            ルート登録").Shows(1090, "ルート").Shows(1064, "3地点");
  visit.ShowsRows(1063, {"鎌倉#", "P#Item", "q#i"}).Shows(1065, "鎌倉(計3地点)").Enter();
  visit.ShowsRows(128, {"鎌倉#", "p#item", "q#i"}).ShowsSelection(128, 0).Shows(131, "3件");
  visit.ShowsCheck(137, true).Pick(128, 1).Shows(101, "c:\\a.jpg").Shows(105, "c:\\a.txt");
  visit.Pick(128, 2).Shows(101, "a.jpg").Shows(105, "b.jpg").Shows(108, "2");
  // Once more in the same minute, under another name; giving up takes nothing back.
  visit.Click(1062).OpensDialog(153).Type(1065, "x@|y").Click(1).Escape();
  EXPECT_EQ(Call(visit, {list}), "cancel");
  const std::string lines = FromUtf8(
                                "鎌倉 35.3 139.5  寺\r\np 1 2 item c:\\a.jpg c:\\a.txt\r\n"
                                "q 1 2$b.jpg i a.jpg\r\n")
                                .bytes;
  EXPECT_EQ(folder.Content(),
            (Files{{"RoutMstr.dat", Entry("鎌倉(計3地点)") + Entry("x@|y", "G04C2513.6R")},
                   {kMember, lines},
                   {"G04C2513.6R", lines}}));
}

TEST_F(RouteRegistTest, AnAreaGoesToItsOwnListUnderANameThatFits) {
  ScriptFrontEnd visit;
  visit.OpensDialog(149).Click(1062).OpensDialog(153).ShowsTitle("            エリア登録");
  visit.Shows(1090, "エリア").Type(1065, ";a").Click(1).Shows(105, "F.txt");
  visit.Click(1062).OpensDialog(153).Type(1065, "湘南").Click(1).Shows(105, "f.txt").Click(103);
  EXPECT_EQ(Call(visit, {.mode = "AreaMap"}), "AUTO");
  EXPECT_EQ(folder.Content(), (Files{{"AreaMstr.dat", Entry("湘南", "G04C2513.5A")},
                                     {"G04C2513.5A", "p1 1 2 i f.txt\r\np2 1 2 i f.txt\r\n"}}));
}

}  // namespace
}  // namespace orreryui
