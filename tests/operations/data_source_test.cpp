#include <orreryui/orreryui.h>

#include "tests/support/failing_disk.h"

namespace orreryui {
namespace {

constexpr char kList[] = "BINDER.DAT";
constexpr char kCommonArea[] = "HD(共通領域)";
constexpr char kCommonNote[] = "HD(共通領域)のﾃﾞｰﾀﾌｧｲﾙが地図に表示されます。";
constexpr char kBothNote[] = "HD(共通領域)と指定の２つのﾃﾞｰﾀﾌｧｲﾙが地図に表示されます。";
constexpr char kChosenNote[] = "指定のﾃﾞｰﾀﾌｧｲﾙが地図に表示されます。";

std::string Lines(int first, int last) {
  std::string lines;
  for (int i = first; i <= last; ++i) lines += "name" + std::to_string(i) + "\r\n";
  return lines;
}

class DataSourceTest : public testing::Test {
 protected:
  DataSourceTest() { script.OpensDialog(134); }

  // The result in UTF-8.
  std::string Call(ScriptFrontEnd& visit, int selected, const char* common_area) const {
    return ToUtf8(
        Play(visit, [&] { return OnDataSourceSet(selected, common_area, folder.Argument()); }));
  }

  TestFolder folder;
  ScriptFrontEnd script;
};

TEST_F(DataSourceTest, WithoutAListTheCommonAreaStandsAlone) {
  script.ShowsTitle("         データファイルの登録と選択").ShowsRows(135, {kCommonArea});
  script.Shows(1048, "  1/  1").Shows(135, kCommonArea).Shows(1021, kCommonNote);
  script.ShowsCheck(1020, true).Click(109).Click(1);
  EXPECT_EQ(Call(script, -1, "on"), "0|on|HD(共通領域)");
  EXPECT_EQ(folder.Read(kList), std::nullopt);
}

TEST_F(DataSourceTest, SkipsCommentsAndShowsTheChosenEntry) {
  folder.Write(kList, std::string(";注\r\n東|京\n\r\n表;\r\n最後"_sj));
  script.ShowsRows(135, {kCommonArea, "東|京", "表;", "最後"}).Shows(1048, "  3/  4");
  script.Shows(135, "表;").ShowsCheck(1020, false).Shows(1021, kChosenNote);
  script.Type(135, "なんでも").Click(1);
  EXPECT_EQ(Call(script, 2, "?"), "2|?|表;");
}

TEST_F(DataSourceTest, TheNoteFollowsTheCheckBoxAndNotTheSelection) {
  folder.Write(kList, Lines(1, 3));
  script.Shows(1021, kChosenNote).Click(1020).Shows(1021, kBothNote).Pick(135, 0);
  script.Shows(1021, kBothNote).Shows(1048, "  1/  4").Click(1020).Shows(1021, kCommonNote);
  script.Click(1020).Pick(135, 3).Shows(1048, "  4/  4").Click(1);
  EXPECT_EQ(Call(script, 1, "off"), "3|on|name3");
}

TEST_F(DataSourceTest, ARegistrationChoosesTheNewNameAndStaysAfterCancel) {
  folder.Write(kList, Lines(1, 1));
  script.Click(103).Type(101, "鎌倉|%n ").Click(103).Shows(101, "登録されました！");
  script.Shows(135, "鎌倉|%n ").ShowsRows(135, {kCommonArea, "name1", "鎌倉|%n "});
  script.Shows(1048, "  1/  2").Shows(1021, kCommonNote).Click(103);
  script.Type(101, "登録の本").Click(103).Shows(101, "登録の本");
  script.Type(101, "ー表").Click(103).Escape();
  EXPECT_EQ(Call(script, 0, "off"), "");
  EXPECT_EQ(folder.Read(kList), std::string("name1\r\n鎌倉|%n \r\nー表\r\n"_sj));
}

TEST_F(DataSourceTest, OkReturnsTheNameThatAReaderWillFind) {
  const std::string longest(98, 'x');
  const struct {
    std::string typed, name;  // without a name it is refused
  } cases[] = {
      {"新しい", "新しい"}, {"kamakura\r\n", "kamakura"},
      {"a\r\n\r\nb", "a"},  {"\r\n", ""},
      {"\r\nb", ""},        {";note", ""},
      {" ;", " ;"},         {longest, longest},
      {longest + "y", ""},  {longest + "\r\ny", longest},
  };
  for (const auto& [typed, name] : cases) {
    std::filesystem::remove(folder.Path() / kList);
    ScriptFrontEnd visit;
    visit.OpensDialog(134).Type(101, typed).Click(103);
    visit.Shows(101, name.empty() ? typed : "登録されました！").Click(1);
    EXPECT_EQ(Call(visit, 0, "off"), name.empty() ? "0|off|HD(共通領域)" : "1|off|" + name);
    EXPECT_EQ(folder.Read(kList).value_or(""), name.empty() ? "" : FromUtf8(name).bytes + "\r\n");
  }
}

TEST_F(DataSourceTest, ADeletionRewritesTheListAndChoosesTheCommonArea) {
  folder.Write(kList, ";comment\r\n\r\nname1\nname2\nname3");
  script.Type(101, "name4").Click(103).Pick(135, 1).Click(109);
  script.ShowsRows(135, {kCommonArea, "name2", "name3", "name4"}).Shows(1048, "  1/  4");
  script.Shows(135, kCommonArea).Pick(135, 3).Click(109).Click(109).Click(1);
  EXPECT_EQ(Call(script, 2, "on"), "0|on|HD(共通領域)");
  EXPECT_EQ(folder.Read(kList), Lines(2, 3));
}

TEST_F(DataSourceTest, ADeletionTakesOneNameOffWhatTheFileHoldsByThen) {
  const struct {
    const char *opened, *meanwhile;
    int row;
    const char* after;
  } cases[] = {
      {"a\nb\n", "a\nb\nother\n", 1, "b\r\nother\r\n"},
      {"a\nb\na\n", "other\na\na\nb\n", 3, "other\r\na\r\nb\r\n"},
      {"a\nb\na\n", "a\nb\n", 3, "a\nb\n"},
      {"a\nb\n", "a\n", 2, "a\n"},
      {"a\nb\n", "", 1, ""},
  };
  for (const auto& c : cases) {
    folder.Write(kList, c.opened);
    ScriptFrontEnd visit;
    visit.OpensDialog(134).Does(Silently([&] { folder.Write(kList, c.meanwhile); }));
    visit.Pick(135, c.row).Click(109).Escape();
    Call(visit, 0, "off");
    EXPECT_EQ(folder.Read(kList), c.after) << c.meanwhile;
  }
}

TEST_F(DataSourceTest, AListThatCouldNotBeReadTakesNoNameAndLosesNone) {
  ForEachFault([&](FaultyFileSystem& files) {
    folder.Write(kList, Lines(1, 3));
    std::optional<ScopedFileSystem> broken(files);
    ScriptFrontEnd visit;
    visit.OpensDialog(134).Does(Silently([&] { broken.reset(); }));
    visit.Type(101, "x").Click(103).Click(109).Escape();
    Call(visit, 0, "off");
    EXPECT_EQ(folder.Read(kList), Lines(1, 3));
  });
}

TEST_F(DataSourceTest, AFullListTakesNoNameAndLosesNone) {
  folder.Write(kList, Lines(1, 5000));
  script.Shows(1048, "100/100").Type(101, "one more").Click(103).Shows(101, "one more");
  script.Pick(135, 99).Click(109).Shows(1048, "  1/100").Pick(135, 99).Shows(135, "name100");
  script.Click(1);
  EXPECT_EQ(Call(script, 99, "off"), "99|off|name100");
  EXPECT_EQ(folder.Read(kList), Lines(1, 98) + Lines(100, 5000));
}

TEST_F(DataSourceTest, TheNinetyNinthNameStillFits) {
  folder.Write(kList, Lines(1, 98));
  script.Type(101, "name99").Click(103).Type(101, "name100").Click(103).Shows(101, "name100");
  script.Click(1);
  EXPECT_EQ(Call(script, 0, "off"), "99|off|name99");
  EXPECT_EQ(folder.Read(kList), Lines(1, 99));
}

TEST_F(DataSourceTest, AWriteThatFailsIsARefusedClick) {
  folder.Write(kList, Lines(1, 2));
  const auto change = [this](int button) {
    return Change{folder, kList,
                  [](ScriptFrontEnd& visit) { visit.OpensDialog(134).Type(101, "name3"); },
                  [button](ScriptFrontEnd& visit) { visit.Click(button); },
                  [this](ScriptFrontEnd& visit) { Call(visit.Escape(), 1, "off"); }};
  };
  script = ScriptFrontEnd();
  PlayOnAFailingDisk(change(103));
  ForEachFault([&](FaultyFileSystem& files) {
    folder.Write(kList, Lines(1, 2));
    const auto [old, scene] = Play(change(109), files);
    // A list that can't be read behind the deletion shows none of its names.
    EXPECT_TRUE(scene == old || scene.files == (Files{{kList, Lines(2, 2)}}));
  });
}

TEST_F(DataSourceTest, AFolderThatIsMissingOrALackingSeparatorReadsAsNoList) {
  folder.Write(kList, Lines(1, 2));
  for (const std::string& argument :
       {folder.Path().string(), folder.Path().string() + "/none/", std::string()}) {
    ScriptFrontEnd visit;
    visit.OpensDialog(134).Shows(1048, "  1/  1").Type(101, "x").Click(1);
    const auto call = [&] { return OnDataSourceSet(5, "off", argument.c_str()); };
    EXPECT_EQ(Play(visit, call), "0|off|HD(共通領域)"_sj);
  }
}

}  // namespace
}  // namespace orreryui
