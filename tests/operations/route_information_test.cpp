// The selection and the update of stored maps, by their operation on real files.
#include <gtest/gtest.h>
#include <orreryui/orreryui.h>
#include <sys/stat.h>

#include "frame/file_changes.h"
#include "front_ends/script/script_front_end.h"
#include "platform/dialogs/front_end_loader.h"
#include "platform/strings/code_page_932.h"
#include "platform/strings/japanese_literal.h"
#include "tests/support/each_fault.h"
#include "tests/support/test_folder.h"

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
    ScopedFrontEnd scope(&visit);
    const CString result = OnRouteInformation(kind, display, editor.c_str(), folder.Argument());
    EXPECT_EQ(visit.Failures(), "");
    return ToUtf8(result);
  }

  std::string PathOf(const std::string& name) const { return folder.Path().string() + "/" + name; }
  std::string Entry(const std::string& name, const std::string& member) const {
    return FromUtf8(name).bytes + "@" + PathOf(member) + "\r\n";
  }

  // A program that does these commands with the path of a member file as $1.
  std::string MakeEditor(const std::string& commands) const {
    folder.Write("editor", "#!/bin/sh\n" + commands + "\n");
    EXPECT_EQ(chmod(PathOf("editor").c_str(), 0755), 0);
    return PathOf("editor");
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
    if (is_folder) std::filesystem::create_directory(PathOf(kRoutes));
    ScriptFrontEnd visit;
    visit.OpensDialog(157).ShowsRows(1089, {}).Shows(1092, "").ShowsCheck(1088, true);
    visit.Click(1091).OpensDialog(156).ShowsRows(1078, {}).Shows(1077, "0件").Type(1080, "x");
    visit.Click(1081).Click(1079).Escape().Click(1087).Click(1);
    EXPECT_EQ(Call(visit, 0, "other"), "-1|||AUTO");
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
  visit.Pick(1089, 0).Click(1);
  EXPECT_EQ(Call(visit), "0|一||" + PathOf("1") + "|AUTO");
  const struct {
    int row;
    std::string result;
  } cases[] = {
      {1, "1||no at|AUTO"}, {2, "2|empty||AUTO"}, {3, "3|none|" + PathOf("none") + "|AUTO"}};
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
  EXPECT_EQ(Call(visit), "1|y|" + PathOf("2") + "|AUTO");
  EXPECT_EQ(folder.Content(),
            (Files{{kRoutes, Entry("x", "1") + Entry("w", "none")}, {"1", Lines(1)}}));
}

// While calls of the file system fail, each click has no effect at all or the whole of it, on the
// disk and on the screen.
TEST_F(RouteInformationTest, AChangeThatFailsIsARefusedClick) {
  const Files before = {
      {kRoutes, ";c\r\n" + Entry("x", "1") + Entry("y", "2")}, {"1", "a"}, {"2", "b"}};
  const struct {
    int click;
    Files after;
    const char* first;
  } cases[] = {
      {1079, {{kRoutes, Entry("y", "2")}, {"2", "b"}}, "y"},
      {1081, {{kRoutes, Entry("new", "1") + Entry("y", "2")}, {"1", "a"}, {"2", "b"}}, "new"},
  };
  for (const auto& c : cases) {
    int refusals = 0;
    ForEachFault([&](FaultyFileSystem& files) {
      folder.Lay(before);
      ScriptFrontEnd visit;
      visit.OpensDialog(157).Click(1091).OpensDialog(156).Pick(1078, 0).Type(1080, "new");
      visit.Does([&](ControlSession& session) {
        {
          const ScopedFileSystem scope(files);
          session.Click(c.click);
        }
        FinishChanges(PathOf(kRoutes).c_str());
        const bool changed = folder.Content() != before;
        refusals += changed ? 0 : 1;
        EXPECT_EQ(folder.Content(), changed ? c.after : before);
        for (int i = 0; i < session.ControlCount(); ++i) {
          const ControlView view = session.Control(i);
          EXPECT_TRUE(view.id != 1078 || view.rows[0][0] == (changed ? c.first : "x"));
          EXPECT_TRUE(view.id != 1080 || view.text == "new");
        }
        return "";
      });
      visit.Escape().Escape();
      EXPECT_EQ(Call(visit), "");
    });
    EXPECT_GT(refusals, 4);
  }
}

// From a list of the host's to a map that is found again, edited, renamed and deleted.
TEST_F(RouteInformationTest, AMapLivesFromItsRegistrationToItsDeletion) {
  const auto regist = [&](ScriptFrontEnd& visit) {
    const ScopedFrontEnd scope(&visit);
    OnRouteRegistModule(0, 0, folder.Argument(), "", "", "RouteMap", "", "", "", "", "", "", "AUTO",
                        "", "鎌倉 35.3 139.5 寺 A.txt|B 1 2 i f|999|"_sj);
    EXPECT_EQ(visit.Failures(), "");
  };
  ScriptFrontEnd first, second;
  first.OpensDialog(149).Click(1062).OpensDialog(153).Click(1).Click(103);
  regist(first);
  second.OpensDialog(149).Click(1062).OpensDialog(153).Type(1065, "other").Click(1).Click(103);
  regist(second);
  const std::string member = FromUtf8("鎌倉 35.3 139.5 寺 a.txt\r\nb 1 2 i f\r\n").bytes;
  EXPECT_EQ(folder.Content().size(), 3u);

  const std::string editor = MakeEditor("echo 'c 1 2 i f' >> \"$1\"");
  ScriptFrontEnd visit;
  visit.OpensDialog(157).ShowsRows(1089, {"鎌倉(計2地点)", "other"}).Pick(1089, 0);
  visit.ShowsRows(1086, {"鎌倉#寺", "b#i"}).Click(1090).ShowsRows(1086, {"鎌倉#寺", "b#i"});
  visit.Pick(1089, 0).ShowsRows(1086, {"鎌倉#寺", "b#i", "c#i"}).Click(1091).OpensDialog(156);
  visit.Pick(1078, 0).Type(1080, "散歩").Click(1081).Click(1).ShowsRows(1089, {"散歩", "other"});
  visit.Click(1091).OpensDialog(156).Pick(1078, 0).Click(1079).Click(1).ShowsRows(1089, {"other"});
  visit.Pick(1089, 0).ShowsRows(1086, {"鎌倉#寺", "b#i"}).Click(1088).Click(1);
  const std::string result = Call(visit, 0, "AUTO", editor);
  EXPECT_TRUE(result.starts_with("0|other|" + PathOf("G")) && result.ends_with("R|MANUAL"))
      << result;
  const std::string path = result.substr(8, result.rfind('|') - 8);
  EXPECT_EQ(folder.Content(), (Files{{kRoutes, "other@" + path + "\r\n"},
                                     {path.substr(PathOf("").size()), member},
                                     {"editor", folder.Read("editor").value()}}));
}

}  // namespace
}  // namespace orreryui
