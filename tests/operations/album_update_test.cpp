#include <orreryui/orreryui.h>

#include "tests/support/play.h"

namespace orreryui {
namespace {

constexpr char kAlbum[] = "a.alb";

std::string Lines(int first, int last) {
  std::string lines;
  for (int i = first; i <= last; ++i) lines += "p" + std::to_string(i) + " 1 2 i f.txt\r\n";
  return lines;
}

class AlbumUpdateTest : public testing::Test {
 protected:
  // The result in UTF-8.
  std::string Call(ScriptFrontEnd& visit, int code = 7, const char* state = "old",
                   const std::string& editor = "") const {
    return ToUtf8(Play(visit, [&] {
      return OnAlbumUpdate(code, state, album, "鎌倉"_sj, "寺 社"_sj, "139.5", "35.3",
                           editor.c_str());
    }));
  }

  TestFolder folder;
  CString album = folder.Argument() + kAlbum;
};

TEST_F(AlbumUpdateTest, TheEndTellsTheHostWhatToDo) {
  constexpr char kPoint[] = "鎌倉 35.3 139.5 寺 社 ";
  const struct {
    int code;
    int button;
    std::string untouched, changed;  // the results without and with another place name
  } cases[] = {
      {7, 1, std::string("7|1|") + kPoint, "7|1|大仏 35.3 139.5 寺 社 "},
      {0, 1, std::string("0|2|") + kPoint, "0|2|大仏 35.3 139.5 寺 社 "},
      {-1, 1, std::string("-1|1|") + kPoint, "-1|1|大仏 35.3 139.5 寺 社 "},
      {7, 103, std::string("0|2|") + kPoint, std::string("0|2|") + kPoint},
      {7, 121, "7|3|", "7|3|"},
      {0, 121, "0|3|", "0|3|"},
      {7, 2, "", ""},
      {0, 2, "", ""},
      {-1, 2, "-1|3|", "-1|3|"},
      {-1, 103, std::string("0|2|") + kPoint, std::string("0|2|") + kPoint},
      {-1, 121, "-1|3|", "-1|3|"},
  };
  for (const auto& [code, button, untouched, changed] : cases) {
    SCOPED_TRACE(std::to_string(code) + " " + std::to_string(button));
    ScriptFrontEnd leaves, changes;
    leaves.OpensDialog(147).Click(button);
    EXPECT_EQ(Call(leaves, code), untouched);
    changes.OpensDialog(147).Type(129, "大仏").Click(button);
    EXPECT_EQ(Call(changes, code), changed);
  }
  EXPECT_EQ(folder.Read(kAlbum), std::nullopt);
}

TEST_F(AlbumUpdateTest, OkReadsTheFourBoxesOfThePointAndNoOther) {
  folder.Write(kAlbum, "p 1 2 i f.txt\r\n");
  ScriptFrontEnd script;
  script.OpensDialog(147).ShowsTitle("  アルバムデータの更新");
  script.Shows(129, "鎌倉").Shows(130, "寺 社").Shows(132, "35.3").Shows(1000, "139.5");
  script.Does([](ControlSession& dialog) -> std::string {
    const DialogLayout layout = dialog.Layout();
    if (layout.placement != Placement::kAtPosition || layout.x != 340 || layout.y != 20) {
      return "the place is another";
    }
    return layout.focus == 106 ? "" : "the focus is elsewhere";
  });
  script.Type(129, "a|b").Type(130, "").Type(132, "1").Type(1000, "2").Pick(128, 0);
  for (const int id : {106, 104, 105, 101}) script.Type(id, "dropped");
  script.ShowsRows(128, {"p#i"}).Enter();
  EXPECT_EQ(Call(script), "7|1|a|b 1 2  ");
  EXPECT_EQ(folder.Read(kAlbum), "p 1 2 i f.txt\r\n");
}

TEST_F(AlbumUpdateTest, ARowShowsItsFieldsAndThePreviewItsText) {
  folder.Write("t.txt", "main\r\n999\r\n");
  const std::string path = folder.PathOf("t.txt");
  const std::string cut = std::string(190, 'c') + "\x82";  // ends at the longest line's end
  folder.Write(kAlbum, std::string("ァー 1 2 ァ表 P.JPG "_sj) + path +
                           "\r\n;c\r\n\r\nMt 1 2 i t\r\n" +
                           std::string("a 3 4  写真.Bmp\nm@n 3 4 i t.txt p.jpg\nlast\n"_sj) +
                           "p 1 2 i " + cut + "\xA0 1 2 j f");
  const std::string odd = ToUtf8("\xA0");
  ScriptFrontEnd script;
  script.OpensDialog(147)
      .ShowsRows(128, {"ァー#ァ表", "a#", "m", "#", "p#i", odd + "#j"})
      .Shows(131, "6件");
  script.ShowsSelection(128, -1).Shows(106, "").Shows(104, "").Shows(105, "").Shows(101, "");
  script.Shows(1045, "").Click(114);
  script.Pick(128, 0).Shows(131, "1/6").Shows(106, "ァー").Shows(104, "ァ表");
  script.Shows(105, path).Shows(101, "P.JPG").Shows(132, "35.3").Shows(1000, "139.5");
  script.Type(105, "elsewhere").Click(114).OpensDialog(133).Shows(102, path);
  script.Shows(101, "=====   =====\r\nmain\r\n999\r\n\r\n").Click(1);
  script.Pick(128, 1).Shows(131, "2/6").Shows(106, "a").Shows(104, "").Shows(105, "");
  script.Shows(101, "写真.Bmp").Shows(1045, "").Click(114);
  script.Pick(128, 2).Shows(131, "3/6").Shows(106, "").Shows(104, "m");
  script.Shows(105, "n#i@t.txt").Shows(101, "p.jpg");
  script.Pick(128, 3).Shows(106, "").Shows(104, "").Shows(105, "last").Shows(101, "");
  script.Pick(128, 4).Shows(105, ToUtf8(cut)).Pick(128, 5).Shows(106, odd).Click(2);
  EXPECT_EQ(Call(script), "");
}

TEST_F(AlbumUpdateTest, ANewAlbumIsEmptyFromTheStart) {
  for (const char* state : {"new", "New", ""}) {
    folder.Write(kAlbum, Lines(1, 2));
    const bool is_new = std::string(state) == "new";
    ScriptFrontEnd script;
    script.OpensDialog(147).Shows(131, is_new ? "   件" : "2件");
    script.ShowsRows(
        128, is_new ? std::vector<std::string>{} : std::vector<std::string>{"p1#i", "p2#i"});
    script.Escape();
    EXPECT_EQ(Call(script, 7, state), "");
    EXPECT_EQ(folder.Read(kAlbum), is_new ? "" : Lines(1, 2));
  }
  ScriptFrontEnd nowhere;
  nowhere.OpensDialog(147).Shows(131, "   件").Click(103);
  album = folder.Argument() + "none\\a.alb";
  EXPECT_EQ(Call(nowhere, 7, "new"), "0|2|鎌倉 35.3 139.5 寺 社 ");
}

TEST_F(AlbumUpdateTest, AnAlbumThatCannotBeReadIsEmptyAndCanBeEdited) {
  const std::string editor = folder.WriteProgram("ed", "echo > '" + folder.PathOf("ran") + "'");
  for (const CString& path : {folder.Argument(), CString(), folder.Argument() + "none"}) {
    album = path;
    ScriptFrontEnd script;
    script.OpensDialog(147).Shows(131, "0件").Click(1076).Escape();
    EXPECT_EQ(Call(script, 7, "old", editor), "");
    EXPECT_EQ(std::filesystem::remove(folder.PathOf("ran")), !album.IsEmpty()) << album;
  }
}

TEST_F(AlbumUpdateTest, TheEditorsChangesAreKeptAndShownAtTheNextCall) {
  folder.Write(kAlbum, Lines(1, 2));
  const std::string editor = folder.WriteProgram("my ed", "printf 'new 1 2 i f.txt\\n' > \"$1\"");
  ScriptFrontEnd script, next;
  script.OpensDialog(147).Pick(128, 1).Click(1076).ShowsRows(128, {"p1#i", "p2#i"});
  script.Shows(131, "2/2").Shows(106, "p2").Pick(128, 0).Shows(106, "p1").Escape();
  EXPECT_EQ(Call(script, 7, "old", editor), "");
  EXPECT_EQ(folder.Read(kAlbum), "new 1 2 i f.txt\n");
  next.OpensDialog(147).ShowsRows(128, {"new#i"}).Escape();
  Call(next);
}

TEST_F(AlbumUpdateTest, WithoutAWindowNothingIsTouched) {
  ScopedFrontEnd no_screen(nullptr);
  folder.Write(kAlbum, Lines(1, 2));
  EXPECT_EQ(OnAlbumUpdate(7, "new", album, "", "", "", "", ""), "");
  EXPECT_EQ(OnAlbumUpdate(-1, "new", album, "", "", "", "", ""), "");
  EXPECT_EQ(folder.Read(kAlbum), Lines(1, 2));
}

}  // namespace
}  // namespace orreryui
