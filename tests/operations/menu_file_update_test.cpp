#include <orreryui/orreryui.h>

#include <climits>

#include "tests/support/play.h"

namespace orreryui {
namespace {

constexpr char kMenuFile[] = "SOURCE/MENUFILE.DAT";
constexpr char kGuidemap[] = "Guidemap/Guidemap.DAT";
constexpr char kAddRow[] = "追加はここに!";

// The item line of a slot, and those of all below `count`.
std::string Item(int slot, const char* body) {
  CString line;
  line.Format("%02d=%s\r\n", slot, body);
  return std::string(line);
}
std::string Entries(int count) {
  return count == 0 ? "" : Entries(count - 1) + Item(count - 1, "t@f");
}

// Eight sections, the first of these lines and the others of an entry each.
std::string MenuFile(const std::string& lines) {
  return ";c\n[M\r\n" + lines + "[M\n00=s1@f\n[M\n[M\n[M\n00=s4@f\n[M\n00=s5@f\n[M\n[M\n00=s7@f";
}

class MenuFileUpdateTest : public testing::Test {
 protected:
  MenuFileUpdateTest() {
    folder.Write(kMenuFile, MenuFile(Entries(1)));
    folder.Write(kGuidemap, "m f\r\n");
    script.OpensDialog(141);
  }

  int Call(ScriptFrontEnd& visit, int kind, const std::string& editor = "") const {
    return Play(visit,
                [&] { return OnDlgMenuBarFileUpdate(folder.Argument(), editor.c_str(), kind); });
  }

  // Opens a row and makes it an entry of these texts.
  static ScriptFrontEnd& Edit(ScriptFrontEnd& visit, int row, const std::string& title,
                              const std::string& file) {
    visit.DoubleClick(1021, row).OpensDialog(178);
    return visit.Type(1022, title).Type(1023, file).Click(1);
  }

  TestFolder folder;
  ScriptFrontEnd script;
};

TEST_F(MenuFileUpdateTest, EachKindHasItsMenus) {
  // `first` and `last` are the entries of the first menu and of the last one.
  const auto check = [&](int kind, const char* title, const std::vector<std::string>& menus,
                         const std::string& column, const char* first, const char* last) {
    ScriptFrontEnd visit;
    visit.OpensDialog(141).ShowsTitle(title).ShowsRows(1141, menus).ShowsSelection(1141, 0);
    visit.ShowsRows(1021, {first, kAddRow}).Shows(131, "計=1").Does([&](ControlSession& dialog) {
      const ControlView list = ControlOf(dialog, 1021);
      EXPECT_EQ(list.columns[0].title + list.columns[1].title, "タイトル" + column);
      EXPECT_EQ(list.rows[0][1], "f");
      return "";
    });
    visit.Pick(1141, static_cast<int>(menus.size()) - 1).ShowsRows(1021, {last, kAddRow});
    visit.Pick(1141, 0).ShowsRows(1021, {first, kAddRow}).Click(1);
    EXPECT_EQ(Call(visit, kind), -1);
  };
  check(0, "   テキストメニューに項目の登録・更新", {"ﾃｷｽﾄ1", "ﾃｷｽﾄ2", "ﾃｷｽﾄ3", "ﾃｷｽﾄ4", "ﾃｷｽﾄ5"},
        "ﾃｷｽﾄﾌｧｲﾙ", "t", "s4");
  check(1, "   画像メニューに項目の登録・更新", {"画像1", "画像2", "画像3"}, "画像ﾌｧｲﾙ", "s5",
        "s7");
  check(2, "   絵地図の登録・更新", {"絵地図"}, "画像ﾌｧｲﾙ", "m", "m");
  EXPECT_EQ(folder.Read(kMenuFile), MenuFile(Entries(1)));
  ScriptFrontEnd nothing;
  for (const int unknown : {-1, 3, INT_MIN, INT_MAX}) EXPECT_EQ(Call(nothing, unknown), -1);
}

TEST_F(MenuFileUpdateTest, AChangeIsSavedWhereTheUserGoesOn) {
  const std::string entry = Item(1, "鎌倉@k"_sj);
  const auto check = [&](auto end, int result, bool saved) {
    folder.Write(kMenuFile, MenuFile(Entries(1)));
    ScriptFrontEnd visit;
    Edit(visit.OpensDialog(141), 1, "鎌倉", "k").ShowsRows(1021, {"t", "鎌倉", kAddRow});
    end(visit.Shows(131, "計=2").ShowsSelection(1021, 2));
    EXPECT_EQ(Call(visit, 0), result);
    EXPECT_EQ(folder.Read(kMenuFile), MenuFile(Entries(1) + (saved ? entry : "")));
  };
  check([](ScriptFrontEnd& visit) { visit.Click(1); }, 1, true);
  check([](ScriptFrontEnd& visit) { visit.Pick(1141, 1).Click(1); }, 1, true);
  check([](ScriptFrontEnd& visit) { visit.Pick(1141, 0).Escape(); }, -1, true);
  check([](ScriptFrontEnd& visit) { visit.Escape(); }, -1, false);
  Edit(script, 1, "江の島", "e f.bmp").Pick(1141, 0).Does(Silently([&] {
    EXPECT_EQ(folder.Read(kGuidemap), "m f\r\n");
  }));
  EXPECT_EQ(Call(script.Click(1), 2), 1);
  EXPECT_EQ(folder.Read(kGuidemap), std::string("m f\r\n江の島 e f.bmp\r\n"_sj));
}

TEST_F(MenuFileUpdateTest, TakesWhatMakesAnEntry) {
  // Whether it is taken, the kind of the menu, the title, a bar and the file; L is a long one.
  for (const std::string text :
       {"+0----|", "+0a--b|", "+0t\r\nu|f", "+0;t|[M", "+012345|L", "+0--3456|L", "+1a b|f",
        "+2a b|f", "+2--|", "+212345678|L", "-0t|", "-0|f", "-0|--", "-0－－－－－－|", "-0\r\nt|f",
        "-0123456|L", "-2;t|f", "-2;--|", "-2123456789|L"}) {
    const std::string title = text.substr(2, text.find('|') - 2);
    std::string file = text.substr(text.find('|') + 1);
    if (file == "L") file = std::string(190, 'f');
    std::vector<std::string> rows = {text[1] == '2' ? "m" : text[1] == '1' ? "s5" : "t", kAddRow};
    if (text[0] == '+') rows.insert(rows.begin() + 1, title.substr(0, title.find('\r')));
    ScriptFrontEnd visit;
    Edit(visit.OpensDialog(141), 1, title, file).ShowsRows(1021, rows).Escape();
    EXPECT_EQ(Call(visit, text[1] - '0'), -1) << text;
  }
}

TEST_F(MenuFileUpdateTest, AMenuHasRoomFor35Entries) {
  const auto is_full = [](ControlSession& dialog) {
    const auto rows = ControlOf(dialog, 1021).rows;
    return rows.size() == 35 && rows[34].front() != kAddRow ? "" : "not 35 entries";
  };
  for (const std::string kept : {"", "35=kept\r\n"}) {
    folder.Write(kMenuFile, MenuFile(Entries(kept.empty() ? 34 : 35) + kept));
    ScriptFrontEnd visit;
    Edit(visit.OpensDialog(141), 34, "new", "f").Shows(131, "計=35").Does(is_full).Click(1);
    EXPECT_EQ(Call(visit, 0), 1);
    EXPECT_EQ(folder.Read(kMenuFile), MenuFile(Entries(34) + Item(34, "new@f") + kept));
  }
  EXPECT_EQ(Call(script.Shows(131, "計=35").Does(is_full).Click(1), 0), -1);
}

TEST_F(MenuFileUpdateTest, ARowOpensTheEntryOfItsSlot) {
  const std::string before = Item(0, "a@b") + Item(1, "x") + Item(2, "@f") + Item(4, "c@d");
  folder.Write(kMenuFile, MenuFile(before + Item(5, "e@")));
  script.ShowsRows(1021, {"a", "----------", "c", "e", kAddRow}).Shows(131, "計=6");
  script.DoubleClick(1021, 1).DoubleClick(1021, 3);
  script.Pick(1021, 2).Enter().OpensDialog(178).ShowsTitle("メニューの更新").Shows(1, "更新");
  script.Shows(1022, "c").Shows(1023, "d").Shows(1026, "ﾃｷｽﾄ ﾌｧｲﾙ").Click(1);
  script.DoubleClick(1021, 4).OpensDialog(178).ShowsTitle("メニューに追加").Shows(1, "追加");
  script.Shows(1022, "").Shows(1023, "").Escape().Click(1);
  EXPECT_EQ(Call(script, 0), -1) << "nothing has changed";
  ScriptFrontEnd again;
  Edit(again.OpensDialog(141), 2, "C", "d").ShowsRows(1021, {"a", "----------", "C", "e", kAddRow});
  EXPECT_EQ(Call(again.Click(1), 0), 1);
  const std::string after = Item(0, "a@b") + Item(1, "----------") + Item(2, "@f") + Item(4, "C@d");
  EXPECT_EQ(folder.Read(kMenuFile), MenuFile(after + Item(5, "e@")));
}

TEST_F(MenuFileUpdateTest, ASaveGoesOverTheSectionAndNothingElse) {
  const std::string editor =
      folder.WriteProgram("ed", "printf '[N]\\n[M\\n00=edited@e\\n[M\\n;new\\n' > \"$1\"");
  Edit(script, 1, "u", "v").Click(1019).ShowsRows(1021, {"t", "u", kAddRow});
  script.Does(Silently([&] { EXPECT_EQ(folder.Read(kMenuFile)->substr(0, 3), "[N]"); }));
  EXPECT_EQ(Call(Edit(script, 0, "w", "x").Click(1), 0, editor), 1);
  EXPECT_EQ(folder.Read(kMenuFile), "[N]\n[M\n00=w@x\r\n01=u@v\r\n[M\n;new\n");
  for (const std::string& command : {std::string("no-such-editor"), editor}) {
    ScriptFrontEnd visit;
    EXPECT_EQ(Call(visit.OpensDialog(141).Click(1019).Click(1), 2, command), 1);
    EXPECT_EQ(folder.Read(kGuidemap)->substr(0, 3), command == editor ? "[N]" : "m f");
  }
}

TEST_F(MenuFileUpdateTest, ASaveThatFailsRefusesWhatAskedForIt) {
  const std::string editor = folder.WriteProgram("ed", "touch '" + folder.PathOf("ran") + "'");
  const auto file = folder.Path() / kMenuFile;
  Edit(script, 1, "u", "v").Does(Silently([&] { std::filesystem::remove(file); }));
  script.Pick(1141, 1).ShowsSelection(1141, 0).ShowsRows(1021, {"t", "u", kAddRow});
  script.Click(1019).Click(1).ShowsRows(1021, {"t", "u", kAddRow}).Does(Silently([&] {
    EXPECT_FALSE(exists(file) || exists(folder.Path() / "ran"));
    folder.Write(kMenuFile, "[M\n");
  }));
  EXPECT_EQ(Call(script.Click(1), 0, editor), 1);
  EXPECT_EQ(folder.Read(kMenuFile), "[M\n00=t@f\r\n01=u@v\r\n");

  std::filesystem::remove(file);
  create_directory(file);
  ScriptFrontEnd unreadable;
  unreadable.OpensDialog(141).ShowsRows(1021, {kAddRow}).DoubleClick(1021, 0).Click(1);
  EXPECT_EQ(Call(unreadable, 0), -1);
}

TEST_F(MenuFileUpdateTest, TheFileCanBeChosen) {
  for (const int kind : {2, 1, 0}) {
    ScriptFrontEnd visit;
    visit.OpensDialog(141).DoubleClick(1021, 1).OpensDialog(178);
    visit.Shows(1026, kind == 0 ? "ﾃｷｽﾄ ﾌｧｲﾙ" : "画像 ﾌｧｲﾙ");
    visit.Click(1025).Beeps().ChoosesFile("/Home/Ａ表.TXT").Shows(1023, "\\home\\Ａ表.txt");
    visit.Click(1025).Beeps().ChoosesFile(std::nullopt).Shows(1023, "\\home\\Ａ表.txt");
    EXPECT_EQ(Call(visit.Escape().Escape(), kind), -1);
    EXPECT_EQ(visit.LastFileRequest().preview_pictures, kind > 0);
    if (kind > 0) continue;
    EXPECT_EQ(visit.LastFileRequest().default_extension, "txt");
    EXPECT_EQ(visit.LastFileRequest().start_name, "/home/*.txt");
    EXPECT_EQ(visit.LastFileRequest().filters.front().label, "ﾃｷｽﾄ files (*.txt)");
  }
}

}  // namespace
}  // namespace orreryui
