// The registration, the selection and the update of stored maps, by their operations on real files.
#include <orreryui/orreryui.h>

#include "tests/support/failing_disk.h"
#include "tests/support/stopped_clock.h"

namespace orreryui {
namespace {

constexpr char kRoutes[] = "RoutMstr.dat";
constexpr char kMember[] = "G04C2513.5R";

// Points from p1 on, as in a file or in the list of a host.
std::string Points(int count, const std::string& end = "\r\n") {
  std::string points;
  for (int i = 1; i <= count; ++i) points += "p" + std::to_string(i) + " 1 2 i F.txt" + end;
  return points;
}

class StoredMapsTest : public testing::Test {
 protected:
  // The results in UTF-8.
  std::string Select(ScriptFrontEnd& visit, int kind = 0, const char* display = "AUTO",
                     const std::string& editor = "") const {
    return ToUtf8(Play(visit, [&] {
      return OnRouteInformation(kind, display, editor.c_str(), folder.Argument());
    }));
  }
  std::string Register(ScriptFrontEnd& visit, const std::string& list,
                       const std::string& mode = "RouteMap", const char* display = "AUTO",
                       int shape = 0) const {
    return ToUtf8(Play(visit, [&] {
      return OnRouteRegistModule(shape, 11, folder.Argument(), "", "", mode.c_str(), "頭1"_sj,
                                 "頭2"_sj, "139", "35", "35.3", "139.5", display, "FILE",
                                 FromUtf8(list).bytes.c_str());
    }));
  }

  std::string Entry(const std::string& name, const std::string& member = kMember) const {
    return FromUtf8(name).bytes + "@" + folder.PathOf(member) + "\r\n";
  }

  TestFolder folder;
  StoppedClock clock;
  ScopedClock time{clock};
};

TEST_F(StoredMapsTest, TheModeSaysWhatIsShownAndWhereThePointsAre) {
  struct Look {
    const char *title, *label, *button, *group;
  };
  const Look route = {"      ﾙｰﾄﾏｯﾌﾟに登録されたﾌｧｲﾙ", "", "ﾙｰﾄ登録", "ﾙｰﾄﾏｯﾌﾟの表示方法"};
  const Look area = {" エリア内のﾌｧｲﾙ (中心 N35.3, E139.5)", "", "ｴﾘｱ登録", "ｴﾘｱﾏｯﾌﾟの表示方法"};
  const Look album = {"        ｱﾙﾊﾞﾑに登録されたﾌｧｲﾙ", "ｱﾙﾊﾞﾑ", "****", "ｱﾙﾊﾞﾑの表示方法"};
  const struct {
    std::string mode;
    int shape;
    const Look& look;
    const char* caption2;
    std::vector<std::string> rows;
  } cases[] = {
      {"RouteMap", 0, route, "", {"p1#i"}},
      {"AreaMap", 0, area, "半径5kmの圏内", {"p1#i"}},
      {"AreaMap", -1, area, "辺長11kmの圏内", {"p1#i"}},
      {folder.PathOf("a.RouteMap"), 0, route, "", {"r#i"}},
      {"RETURN", 0, route, "", {}},
      {folder.PathOf("AreaMap.alb"), 1, album, "頭2", {"a#i"}},
      {"routemap", 1, album, "頭2", {}},
  };
  folder.Write("a.RouteMap", "r 1 2 i f\r\n");
  folder.Write("AreaMap.alb", ";c\r\nMt 1 2 i f\r\n\r\na 1 2 i f\r\n999\r\nz 1 2 i f\r\n");
  for (const auto& c : cases) {
    SCOPED_TRACE(c.mode);
    const bool takes_list = c.mode == "RouteMap" || c.mode == "AreaMap";
    ScriptFrontEnd visit;
    visit.OpensDialog(149).ShowsTitle(c.look.title).Shows(1061, c.look.label).Shows(1034, "頭1");
    visit.Shows(1035, c.caption2).Shows(1062, c.look.button).Shows(1060, c.look.group);
    visit.ShowsRows(128, c.rows).Shows(131, std::to_string(c.rows.size()) + "件");
    visit.ShowsCheck(136, takes_list).ShowsCheck(137, !takes_list).Click(1062);
    if (takes_list) visit.OpensDialog(153).Escape();
    visit.Focus(128).Enter();
    EXPECT_EQ(Register(visit, Points(1, "|"), c.mode, "AUTO", c.shape),
              takes_list ? "AUTO" : "FILE");
  }
  EXPECT_EQ(folder.Content().size(), 2u) << "nothing was stored";
}

TEST_F(StoredMapsTest, AListEndsAtItsEndMarkerItsLastBarOrAHundredPoints) {
  const std::pair<std::string, int> cases[] = {{"999|", 0},
                                               {"999", 0},
                                               {Points(2, "|"), 2},
                                               {Points(2, "|") + "x 1 2", 2},
                                               {Points(99, "|"), 99},
                                               {Points(101, "|"), 100},
                                               {Points(1, "|") + "9990|999|x|", 2}};
  for (const auto& [list, count] : cases) {
    const std::string text = std::to_string(count);
    const std::string name = (count ? "p1(計" : "(計") + text + "地点)";
    ScriptFrontEnd visit;
    visit.OpensDialog(149).Shows(131, text + "件").ShowsSelection(128, count ? 0 : -1);
    visit.Shows(106, count ? "p1" : "").Click(1062).OpensDialog(153).Shows(1064, text + "地点");
    visit.Shows(1065, name).Click(1).Shows(131, text + "件").Click(103);
    folder.Lay({});
    EXPECT_EQ(Register(visit, list), "AUTO");
    EXPECT_EQ(folder.Read(kRoutes), Entry(name));
  }
}

TEST_F(StoredMapsTest, AMapIsStoredAsItIsShownAndThenShownInLowerCase) {
  folder.Write(kRoutes, "old@p");
  ScriptFrontEnd visit;
  visit.OpensDialog(149).Shows(106, "ァー").Shows(104, "表ポ").Shows(105, "T.TXT");
  visit.Shows(101, "P.Jpg").Shows(107, "35.3").Shows(108, "139.5").Shows(131, "9件");
  visit.Pick(128, 2).Shows(131, "3/9").Shows(107, "1").Shows(105, "b.jpg").Type(106, "dropped");
  visit.Pick(128, 8).Shows(106, "").Shows(107, "").Click(137).Click(1062).OpensDialog(153);
  visit.ShowsTitle("            ルート登録").Shows(1090, "ルート").Shows(1064, "9地点");
  visit.Shows(1065, "ァー(計9地点)").Enter();
  visit.ShowsRows(
      128, {"ァー#表ポ", "p#i", "p#i", "p#i", "p.txt#i", "p#i", "p#q#i", "ァーＡ#ポァa", "#"});
  visit.ShowsSelection(128, 0).Shows(131, "9件").ShowsCheck(137, true).Shows(101, "p.jpg");
  visit.Shows(105, "t.txt").Pick(128, 2).Shows(101, "a.jpg").Shows(105, "b.jpg").Shows(108, "2");
  // Once more in the same minute, under another name; giving up takes nothing back.
  visit.Click(1062).OpensDialog(153).Type(1065, "x@|y").Click(1).Escape();
  const std::string list =
      "ァー 35.3 139.5 表ポ P.Jpg T.TXT|P 1 2 i C:\\A.TXT b.bmp|p 1 2 i a.jpg b.jpg|"
      "p 1 2 i a.jpg.txt|p.txt 1 2 i a.jpg|p 1 2 i a.jpg.txt b|p#q 1 2 i a|ァーＡ 1 2 ポァA a||"
      "999|x 1 2 3|";
  EXPECT_EQ(Register(visit, list), "cancel");
  const std::string lines =
      "ァー 35.3 139.5 表ポ p.jpg t.txt\r\np 1 2 i c:\\a.txt b.bmp\r\np 1 2$b.jpg i a.jpg\r\n"
      "p 1 2 i a.jpg.txt\r\np.txt 1 2 i a.jpg\r\np 1 2 i a.jpg.txt b\r\np 1 2 q#i a\r\n"
      "ァーＡ 1 2 ポァa a\r\n    \r\n"_sj;
  EXPECT_EQ(folder.Content(),
            (Files{{kRoutes, "old@p\r\n" + Entry("ァー(計9地点)") + Entry("x@|y", "G04C2513.6R")},
                   {kMember, lines},
                   {"G04C2513.6R", lines}}));
}

TEST_F(StoredMapsTest, AnAreaGoesToItsOwnList) {
  ScriptFrontEnd visit;
  visit.OpensDialog(149).Click(1062).OpensDialog(153).ShowsTitle("            エリア登録");
  visit.Shows(1090, "エリア").Type(1065, "湘南").Click(1).Shows(105, "f.txt").Click(136);
  visit.Click(103);
  EXPECT_EQ(Register(visit, Points(1, "|"), "AreaMap", "MANUAL"), "AUTO");
  EXPECT_EQ(folder.Content(), (Files{{"AreaMstr.dat", Entry("湘南", "G04C2513.5A")},
                                     {"G04C2513.5A", "p1 1 2 i f.txt\r\n"}}));
}

TEST_F(StoredMapsTest, TheKindSaysWhichMapsAndHowTheyAreCalled) {
  folder.Write(kRoutes, Entry("r", "r"));
  folder.Write("AreaMstr.dat", Entry("a", "a"));
  const struct {
    int kind;
    std::string name, label, row;
  } cases[] = {{0, "ルートマップ", "ﾙｰﾄﾏｯﾌﾟ", "r"}, {-1, "エリアマップ", "ｴﾘｱﾏｯﾌﾟ", "a"}};
  for (const auto& [kind, name, label, row] : cases) {
    ScriptFrontEnd visit;
    visit.OpensDialog(157).ShowsTitle("        " + name + "の選択").Shows(1093, label);
    visit.Shows(1094, label + "のデータ").Shows(1122, label + "の表示方法").Shows(131, "");
    visit.ShowsRows(1089, {row}).Shows(1092, "計=1").ShowsSelection(1089, -1).Click(1090);
    visit.Click(1091).OpensDialog(156).ShowsTitle("      " + name + "の更新");
    visit.ShowsRows(1078, {row}).Shows(1077, "1件").Enter().ShowsRows(1089, {row});
    visit.ShowsCheck(1088, true).Click(1087).Focus(1089).Enter();
    EXPECT_EQ(Select(visit, kind, "other"), "-1|||AUTO");
  }
}

TEST_F(StoredMapsTest, OnlyAListThatIsLostShowsNoCount) {
  const auto visit_with_count = [this](const char* count) {
    ScriptFrontEnd visit;
    visit.OpensDialog(157).ShowsRows(1089, {}).Shows(1092, count);
    visit.Click(1091).OpensDialog(156).ShowsRows(1078, {}).Shows(1077, "0件").Type(1080, "x");
    visit.Click(1081).Click(1079).Escape().Click(1);
    EXPECT_EQ(Select(visit, 0, "other|"), "-1|||other|");
  };
  visit_with_count("");
  std::filesystem::create_directory(folder.PathOf(kRoutes));
  visit_with_count("");
  for (const char* list : {"", ";a@b\r\n\r\n;\n"}) {
    folder.Lay({{kRoutes, list}});
    visit_with_count("計=0");
    EXPECT_EQ(folder.Content(), (Files{{kRoutes, list}}));
  }
}

TEST_F(StoredMapsTest, AMapShowsItsPointsAndAPointItsFields) {
  folder.Lay(
      {{kRoutes, ";c\r\n\r\n" + Entry("一|", "1") + "\r\nno at\r\nempty@\r\n;c\r\n" +
                     Entry("none", "none") + Entry("many", "many") + Entry("nil", "nil")},
       {"1", std::string("鎌倉 35.3 139.5 寺 a.jpg a.txt\r\n;b 1 2 i f\r\nM\r\n\r\n999\r\n"_sj)},
       {"many", std::string(199, 'x') + "y\r\n" + Points(100)},
       {"nil", ""}});
  const std::string editor = folder.WriteProgram("editor", "touch \"$0.trace\"");
  ScriptFrontEnd visit;
  visit.OpensDialog(157).ShowsRows(1089, {"一|", "no at", "empty", "none", "many", "nil"});
  visit.Shows(1092, "計=6").Pick(1089, 0).Shows(1092, "1/6").Shows(131, "4件");
  visit.ShowsRows(1086, {"鎌倉#寺", ";b#i", "#", "#"}).ShowsSelection(1086, -1);
  visit.Shows(1080, "鎌倉").Shows(1081, "35.3").Shows(1082, "139.5").Shows(1083, "寺");
  visit.Shows(1084, "a.txt").Shows(1085, "a.jpg").Pick(1086, 3).Shows(131, "4/4");
  visit.Shows(1080, "").Shows(1084, "999").Type(1080, "dropped").Type(1089, "dropped");
  // Without a path the points stay.
  visit.Pick(1089, 2).Shows(1092, "3/6").Shows(131, "4/4").Shows(1084, "999").Click(1090);
  visit.Pick(1089, 4).Shows(131, "99件").Pick(1086, 1).Shows(1084, "y");
  visit.Pick(1086, 98).Shows(131, "99/99").Shows(1080, "p97");
  for (const int row : {1, 3, 5}) {
    visit.Pick(1089, row).ShowsRows(1086, {}).Shows(131, "0件").Shows(1080, "").Shows(1081, "");
  }
  visit.Pick(1089, 1).Click(1088).Click(1);
  EXPECT_EQ(Select(visit, 0, "AUTO", editor), "1||no at|MANUAL");
  EXPECT_EQ(folder.Read("editor.trace"), std::nullopt) << "started without a path";
}

TEST_F(StoredMapsTest, ARenameKeepsTheSelectionAndADeletionClearsIt) {
  const TestFolder outside;
  outside.Write("o", "1");
  const std::string x = Entry("x", "1"), new_entry = Entry("n", "n");
  const std::string f_and_o = Entry("f", "folder") + "o@" + outside.PathOf("o") + "\r\n";
  const std::string before = x + Entry("y", "2") + Entry("z", "none") + f_and_o;
  const std::string after = x + Entry("w", "none") + f_and_o;
  const auto meanwhile = [this](const std::string& list) {
    return Silently([this, list] { folder.Write(kRoutes, list); });
  };
  folder.Lay({{kRoutes, ";c\r\n" + before}, {"1", Points(1)}, {"2", Points(2)}});
  std::filesystem::create_directory(folder.PathOf("folder"));
  ScriptFrontEnd visit;
  visit.OpensDialog(157).Pick(1089, 1).Click(1091).OpensDialog(156).Click(1081).Click(1079);
  visit.Type(1080, "dropped").Click(1081).Pick(1078, 1).Shows(1080, "y").Type(1080, "").Click(1081);
  visit.Type(1080, ";a").Click(1081).Type(1080, std::string(199, 'n')).Click(1081);
  visit.ShowsRows(1078, {"x", "y", "z", "f", "o"}).ShowsSelection(1078, 1).Type(1080, "x");
  visit.Does(meanwhile(new_entry + before)).Click(1081).ShowsSelection(1078, -1);
  visit.ShowsRows(1078, {"n", "x", "x", "z", "f", "o"}).Shows(1080, "x").Type(1080, "改@名");
  visit.Click(1081).ShowsRows(1078, {"n", "x", "改", "z", "f", "o"}).Click(1079);
  visit.Shows(1077, "5件").Shows(1080, "改@名").Click(1081).Click(1079);
  visit.ShowsRows(1078, {"n", "x", "z", "f", "o"});
  // An entry whose member file can't go stays, and takes a name.
  for (const int row : {4, 3, 2}) visit.Pick(1078, row).Click(1079);
  visit.Type(1080, "w").Click(1081).ShowsRows(1078, {"n", "x", "w", "f", "o"}).Pick(1078, 0);
  visit.Does(meanwhile(after)).Click(1081).Click(1079).ShowsRows(1078, {"n", "x", "w", "f", "o"});
  visit.Escape().ShowsRows(1089, {"x", "y", "z", "f", "o"}).Shows(1080, "p1").Pick(1089, 1);
  visit.ShowsRows(1086, {}).Click(1091).OpensDialog(156).Click(1).Shows(1092, "計=4");
  visit.ShowsRows(1089, {"x", "w", "f", "o"}).ShowsSelection(1089, -1).Shows(131, "0件").Click(1);
  EXPECT_EQ(Select(visit), "1|y|" + folder.PathOf("2") + "|AUTO");
  EXPECT_EQ(folder.Read(kRoutes), after);
  EXPECT_EQ(folder.Read("1"), Points(1));
  EXPECT_EQ(folder.Read("2"), std::nullopt);
  EXPECT_EQ(outside.Read("o"), "1");
}

TEST_F(StoredMapsTest, AListBecomesAMapThatIsFoundEditedRenamedAndDeleted) {
  const TestFolder tools;
  const std::string editor = tools.WriteProgram("editor", "echo 'c 1 2 k f.txt' >> \"$1\"");
  const Files before = {{kRoutes, Entry("other", "o")}, {"o", Points(1)}};
  folder.Lay(before);
  ScriptFrontEnd registration, visit, deletion;
  registration.OpensDialog(149).Click(137).Click(1062).OpensDialog(153).Type(1065, "谷戸");
  registration.Enter().Click(103);
  EXPECT_EQ(Register(registration, "a 1 2 i f.txt|b 1 2 j f.txt|999|"), "MANUAL");
  visit.OpensDialog(157).ShowsRows(1089, {"other", "谷戸"}).Pick(1089, 1);
  visit.ShowsRows(1086, {"a#i", "b#j"}).Click(1090).ShowsRows(1086, {"a#i", "b#j"}).Pick(1089, 1);
  visit.ShowsRows(1086, {"a#i", "b#j", "c#k"}).Click(1091).OpensDialog(156).Pick(1078, 1);
  visit.Type(1080, "谷戸の道").Click(1081).Click(1).Pick(1089, 1).Click(1);
  EXPECT_EQ(Select(visit, 0, "AUTO", editor), "1|谷戸の道|" + folder.PathOf(kMember) + "|AUTO");
  deletion.OpensDialog(157).Click(1091).OpensDialog(156).Pick(1078, 1).Click(1079).Click(1);
  deletion.ShowsRows(1089, {"other"}).Escape();
  EXPECT_EQ(Select(deletion), "");
  EXPECT_EQ(folder.Content(), before);
}

TEST_F(StoredMapsTest, AChangeThatFailsIsARefusedClick) {
  folder.Lay({{kRoutes, ";c\r\n" + Entry("x", "1") + Entry("y", "2")}, {"1", "a"}});
  for (const int button : {1079, 1081}) {
    PlayOnAFailingDisk({folder, kRoutes,
                        [](ScriptFrontEnd& visit) {
                          visit.OpensDialog(157).Click(1091).OpensDialog(156);
                          visit.Pick(1078, 0).Type(1080, "new");
                        },
                        [button](ScriptFrontEnd& visit) { visit.Click(button); },
                        [this](ScriptFrontEnd& visit) { Select(visit.Escape().Escape()); }});
  }
  PlayOnAFailingDisk({folder, kRoutes, [](ScriptFrontEnd& visit) { visit.OpensDialog(149); },
                      [](ScriptFrontEnd& visit) { visit.Click(1062).OpensDialog(153).Click(1); },
                      [this](ScriptFrontEnd& visit) { Register(visit.Escape(), Points(1, "|")); }});
}

}  // namespace
}  // namespace orreryui
