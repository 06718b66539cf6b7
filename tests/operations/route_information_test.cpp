// The selection and the update of stored maps, by their operation on real files.
#include <orreryui/orreryui.h>

#include "frame/file_changes.h"
#include "tests/support/each_fault.h"
#include "tests/support/play.h"
#include "tests/support/stopped_clock.h"

namespace orreryui {
namespace {

constexpr char kRoutes[] = "RoutMstr.dat";

std::string Lines(int count) {
  std::string lines;
  for (int i = 1; i <= count; ++i) lines += "p" + std::to_string(i) + " 1 2 i f.txt\r\n";
  return lines;
}

class RouteInformationTest : public testing::Test {
 protected:
  // The result in UTF-8.
  std::string Call(ScriptFrontEnd& visit, int kind = 0, const char* display = "AUTO",
                   const std::string& editor = "") const {
    return ToUtf8(Play(visit, [&] {
      return OnRouteInformation(kind, display, editor.c_str(), folder.Argument());
    }));
  }

  std::string Entry(const std::string& name, const std::string& member) const {
    return FromUtf8(name).bytes + "@" + folder.PathOf(member) + "\r\n";
  }

  TestFolder folder;
};

TEST_F(RouteInformationTest, TheKindSaysWhichMapsAndHowTheyAreCalled) {
  folder.Write(kRoutes, Entry("r", "r"));
  folder.Write("AreaMstr.dat", Entry("a", "a"));
  const struct {
    int kind;
    const char *title, *label, *data, *display, *update, *row;
  } cases[] = {
      {0, "        ルートマップの選択", "ﾙｰﾄﾏｯﾌﾟ", "ﾙｰﾄﾏｯﾌﾟのデータ", "ﾙｰﾄﾏｯﾌﾟの表示方法",
       "      ルートマップの更新", "r"},
      {-1, "        エリアマップの選択", "ｴﾘｱﾏｯﾌﾟ", "ｴﾘｱﾏｯﾌﾟのデータ", "ｴﾘｱﾏｯﾌﾟの表示方法",
       "      エリアマップの更新", "a"},
  };
  for (const auto& c : cases) {
    ScriptFrontEnd visit;
    visit.OpensDialog(157).ShowsTitle(c.title).Shows(1093, c.label).Shows(1094, c.data);
    visit.Shows(1122, c.display).ShowsRows(1089, {c.row}).Shows(1092, "計=1").Shows(131, "");
    visit.ShowsSelection(1089, -1).Click(1090).Click(1091).OpensDialog(156).ShowsTitle(c.update);
    visit.ShowsRows(1078, {c.row}).Shows(1077, "1件").Enter();
    visit.ShowsTitle(c.title).ShowsRows(1089, {c.row}).Focus(1089).Enter();
    EXPECT_EQ(Call(visit, c.kind), "-1|||AUTO");
  }
}

TEST_F(RouteInformationTest, ALostListShowsNoCountAndTheDisplayComesBackAllTheSame) {
  for (const bool is_folder : {false, true}) {
    if (is_folder) std::filesystem::create_directory(folder.PathOf(kRoutes));
    ScriptFrontEnd visit;
    visit.OpensDialog(157).ShowsRows(1089, {}).Shows(1092, "").ShowsCheck(1088, true);
    visit.Click(1091).OpensDialog(156).ShowsRows(1078, {}).Shows(1077, "0件").Type(1080, "x");
    visit.Click(1081).Click(1079).Escape().Click(1087).Click(1);
    EXPECT_EQ(Call(visit, 0, "other"), "-1|||AUTO");
    EXPECT_EQ(std::filesystem::exists(folder.PathOf(kRoutes)), is_folder);
  }
  ScriptFrontEnd unchanged, escape;
  unchanged.OpensDialog(157).Click(1);
  EXPECT_EQ(Call(unchanged, 0, "other|"), "-1|||other|");
  escape.OpensDialog(157).Click(1088).Escape();
  EXPECT_EQ(Call(escape), "");
}

TEST_F(RouteInformationTest, AMapShowsItsPointsAndAPointItsFields) {
  folder.Lay(
      {{kRoutes, ";c\r\n\r\n" + Entry("一|", "1") + "\r\nno at\r\nempty@\r\n;c\r\n" +
                     Entry("none", "none") + Entry("many", "many") + Entry("nil", "nil")},
       {"1", std::string("鎌倉 35.3 139.5 寺 a.jpg a.txt\r\n;b 1 2 i f\r\nM\r\n\r\n999\r\n"_sj)},
       {"many", Lines(100)},
       {"nil", ""}});
  // What the editor adds is shown when the map is picked anew.
  const std::string editor = folder.WriteProgram("editor", "echo 'c 1 2 j f' >> \"${1-$0.trace}\"");
  ScriptFrontEnd visit;
  visit.OpensDialog(157).ShowsRows(1089, {"一|", "no at", "empty", "none", "many", "nil"});
  visit.Shows(1092, "計=6").Pick(1089, 0).Shows(1092, "1/6").Shows(131, "4件");
  visit.ShowsRows(1086, {"鎌倉#寺", ";b#i", "#", "#"}).ShowsSelection(1086, -1);
  visit.Shows(1080, "鎌倉").Shows(1081, "35.3").Shows(1082, "139.5").Shows(1083, "寺");
  visit.Shows(1084, "a.txt").Shows(1085, "a.jpg").Pick(1086, 3).Shows(131, "4/4");
  visit.Shows(1080, "").Shows(1084, "999").Type(1080, "dropped").Type(1089, "dropped");
  // Without a path the points stay.
  visit.Pick(1089, 2).Shows(1092, "3/6").Shows(131, "4/4").Shows(1084, "999").Click(1090);
  visit.Pick(1089, 4).Shows(131, "99件").Pick(1086, 98).Shows(131, "99/99").Shows(1080, "p99");
  for (const int row : {1, 3, 5}) {
    visit.Pick(1089, row).ShowsRows(1086, {}).Shows(131, "0件").Shows(1080, "").Shows(1081, "");
  }
  visit.Pick(1089, 5).Click(1090).ShowsRows(1086, {}).Pick(1089, 5).ShowsRows(1086, {"c#j"});
  visit.Pick(1089, 0).Click(1088).Click(1);
  EXPECT_EQ(Call(visit, 0, "AUTO", editor), "0|一||" + folder.PathOf("1") + "|MANUAL");
  EXPECT_EQ(folder.Read("editor.trace"), std::nullopt) << "started without a path";
  const struct {
    int row;
    std::string result;
  } cases[] = {
      {1, "1||no at|AUTO"}, {2, "2|empty||AUTO"}, {3, "3|none|" + folder.PathOf("none") + "|AUTO"}};
  for (const auto& [row, result] : cases) {
    ScriptFrontEnd choice;
    choice.OpensDialog(157).Pick(1089, row).Click(1);
    EXPECT_EQ(Call(choice), result);
  }
}

TEST_F(RouteInformationTest, ARenameKeepsTheSelectionAndADeletionClearsIt) {
  folder.Lay({{kRoutes, ";c\r\n" + Entry("x", "1") + Entry("y", "2") + Entry("z", "none")},
              {"1", Lines(1)},
              {"2", Lines(2)}});
  ScriptFrontEnd visit;
  visit.OpensDialog(157).Pick(1089, 1).Click(1091).OpensDialog(156).Click(1081).Click(1079);
  visit.Type(1080, "dropped").Click(1081).Pick(1078, 1).Shows(1080, "y").Type(1080, "").Click(1081);
  visit.Type(1080, ";a").Click(1081).Type(1080, std::string(199, 'n')).Click(1081);
  visit.ShowsRows(1078, {"x", "y", "z"}).ShowsSelection(1078, 1);
  visit.Type(1080, "x").Click(1081).ShowsRows(1078, {"x", "x", "z"}).ShowsSelection(1078, -1);
  visit.Shows(1080, "x").Type(1080, "改@名").Click(1081).ShowsRows(1078, {"x", "改", "z"});
  visit.Click(1079).ShowsRows(1078, {"x", "z"}).Shows(1077, "2件").Shows(1080, "改@名");
  visit.Click(1081).Click(1079);
  // An entry whose member file has gone takes a name, and stays.
  visit.Pick(1078, 1).Click(1079).Type(1080, "w").Click(1081).ShowsRows(1078, {"x", "w"}).Escape();
  visit.ShowsRows(1089, {"x", "y", "z"}).Shows(1080, "p1").Pick(1089, 1).ShowsRows(1086, {});
  visit.Click(1091).OpensDialog(156).Click(1).ShowsRows(1089, {"x", "w"}).Shows(1092, "計=2");
  visit.ShowsSelection(1089, -1).Shows(131, "0件").Click(1);
  EXPECT_EQ(Call(visit), "1|y|" + folder.PathOf("2") + "|AUTO");
  EXPECT_EQ(folder.Content(),
            (Files{{kRoutes, Entry("x", "1") + Entry("w", "none")}, {"1", Lines(1)}}));
}

TEST_F(RouteInformationTest, AListBecomesAMapThatIsFoundEditedRenamedAndDeleted) {
  StoppedClock clock;
  const ScopedClock time(clock);
  const TestFolder tools;
  const std::string editor = tools.WriteProgram("editor", "echo 'c 1 2 k f.txt' >> \"$1\"");
  const Files before = {{kRoutes, Entry("other", "o")}, {"o", Lines(1)}};
  folder.Lay(before);
  ScriptFrontEnd registration;
  registration.OpensDialog(149).Click(1062).OpensDialog(153).Type(1065, "谷戸").Enter().Click(103);
  Play(registration, [&] {
    return OnRouteRegistModule(0, 0, folder.Argument(), "", "", "RouteMap", "", "", "", "", "", "",
                               "AUTO", "", "a 1 2 i f.txt|b 1 2 j f.txt|999|");
  });
  ScriptFrontEnd visit;
  visit.OpensDialog(157).ShowsRows(1089, {"other", "谷戸"}).Pick(1089, 1);
  visit.ShowsRows(1086, {"a#i", "b#j"}).Click(1090).Pick(1089, 1);
  visit.ShowsRows(1086, {"a#i", "b#j", "c#k"}).Click(1091).OpensDialog(156).Pick(1078, 1);
  visit.Type(1080, "谷戸の道").Click(1081).Click(1).Pick(1089, 1).Click(1);
  EXPECT_EQ(Call(visit, 0, "AUTO", editor), "1|谷戸の道|" + folder.PathOf("G04C2513.5R") + "|AUTO");
  ScriptFrontEnd deletion;
  deletion.OpensDialog(157).Click(1091).OpensDialog(156).Pick(1078, 1).Click(1079).Click(1);
  deletion.ShowsRows(1089, {"other"}).Escape();
  EXPECT_EQ(Call(deletion), "");
  EXPECT_EQ(folder.Content(), before);
}

// While calls of the file system fail, each click has no effect at all or the whole of it, on the
// disk and on the screen.
TEST_F(RouteInformationTest, AChangeThatFailsIsARefusedClick) {
  const std::string before = Entry("x", "1") + Entry("y", "2");
  const struct {
    int click;
    const char* first;
    std::string after;
  } cases[] = {{1079, "y", Entry("y", "2")}, {1081, "new", Entry("new", "1") + Entry("y", "2")}};
  for (const auto& c : cases) {
    int refusals = 0;
    ForEachFault([&](FaultyFileSystem& files) {
      folder.Lay({{kRoutes, before}, {"1", "a"}});
      ScriptFrontEnd visit;
      visit.OpensDialog(157).Click(1091).OpensDialog(156).Pick(1078, 0).Type(1080, "new");
      visit.Does([&](ControlSession& session) {
        {
          const ScopedFileSystem scope(files);
          session.Click(c.click);
        }
        FinishChanges(folder.PathOf(kRoutes).c_str());
        const bool changed = folder.Read(kRoutes) == c.after;
        refusals += changed ? 0 : 1;
        EXPECT_TRUE(changed || folder.Read(kRoutes) == before);
        EXPECT_EQ(ControlOf(session, 1078).rows.at(0).at(0), changed ? c.first : "x");
        EXPECT_EQ(ControlOf(session, 1080).text, "new");
        return "";
      });
      visit.Escape().Escape();
      EXPECT_EQ(Call(visit), "");
    });
    EXPECT_GT(refusals, 4);
  }
}

}  // namespace
}  // namespace orreryui
