#include <orreryui/orreryui.h>

#include "tests/support/failing_disk.h"

namespace orreryui {
namespace {

constexpr char kAlbum[] = "a.alb";
constexpr char kGivenUp[] = "4||||";

class AlbumRegistTest : public testing::Test {
 protected:
  AlbumRegistTest() { script.OpensDialog(148); }

  // The result in UTF-8, for the code 7 and the point 35.0 N, 135.0 E.
  std::string Call(ScriptFrontEnd& visit) const {
    const CString album = folder.Argument() + kAlbum;
    return ToUtf8(
        Play(visit, [&] { return OnDLLAlbumRegist(7, "135.0", "35.0", album, "No.12"); }));
  }

  static ScriptFrontEnd& Fill(ScriptFrontEnd& visit, const char* memo_1, const char* memo_2,
                              const char* text, const char* picture) {
    return visit.Type(106, memo_1).Type(107, memo_2).Type(108, text).Type(102, picture);
  }
  static ScriptFrontEnd& ShowsEmptyBoxes(ScriptFrontEnd& visit) {
    return visit.Shows(106, "").Shows(107, "").Shows(108, "").Shows(102, "");
  }

  TestFolder folder;
  ScriptFrontEnd script;
};

TEST_F(AlbumRegistTest, StartsWithTheHostsPointAndReturnsItAsTheUserLeftIt) {
  script.ShowsTitle("　アルバムの新規登録").Shows(1044, "No.12").Shows(1045, "1");
  script.Shows(105, "35.0").Shows(129, "135.0").Shows(101, "").Shows(104, "");
  ShowsEmptyBoxes(script).Type(101, "鎌倉 ァ|").Type(104, "寺\r\n社").Type(129, "139.5");
  script.Click(1);
  EXPECT_EQ(Call(script), "7|139.5|35.0|鎌倉 ァ||寺\r\n社");
  EXPECT_EQ(folder.Read(kAlbum), std::nullopt);
}

TEST_F(AlbumRegistTest, EachAdditionIsInTheFileAtOnce) {
  folder.Write(kAlbum, "an old album\r\nof two lines\r\n");
  script.Type(101, "鎌倉").Type(104, "i");
  Fill(script, "大仏", "高徳院", "C:\\A B.txt", "").Click(117).Shows(1045, "2");
  ShowsEmptyBoxes(script).Shows(101, "鎌倉").Shows(104, "i").Shows(129, "135.0");
  script.Type(105, "35.5");
  Fill(script, "m1", "", "t.txt", "表.JPG").Click(117).Shows(1045, "3").Shows(105, "35.5");
  Fill(script, "m 1", "m2", "", "p.gif").Click(117).Shows(1045, "4");
  std::optional<std::string> before_the_end;
  script.Does(Silently([&] { before_the_end = folder.Read(kAlbum); }));
  script.Click(1047);
  EXPECT_EQ(Call(script), kGivenUp);
  const std::string lines =
      "大仏 35.0 135.0 高徳院 C:\\A B.txt\r\n"
      "m1 35.5 135.0  表.JPG t.txt\r\n"
      "m 1 35.5 135.0 m2 p.gif\r\n"_sj;
  EXPECT_EQ(before_the_end, lines);
  EXPECT_EQ(folder.Read(kAlbum), lines);

  // A second registration starts the file anew.
  ScriptFrontEnd again;
  again.OpensDialog(148).Shows(1045, "1").Type(101, "p");
  Fill(again, "m", "", "t", "").Click(117).Click(1);
  EXPECT_EQ(Call(again), "7|135.0|35.0|p|");
  EXPECT_EQ(folder.Read(kAlbum), "m 35.0 135.0  t\r\n");
}

TEST_F(AlbumRegistTest, AnAdditionThatLacksAPartChangesNothing) {
  const struct {
    const char *place, *memo_1, *memo_2, *text, *picture;
  } cases[] = {{"", "m1", "m2", "t", "p"}, {"p", "", "m2", "t", "p"}, {"p", "m1", "m2", "", ""}};
  for (const auto& [place, memo_1, memo_2, text, picture] : cases) {
    ScriptFrontEnd visit;
    visit.OpensDialog(148).Type(101, place);
    Fill(visit, memo_1, memo_2, text, picture).Click(117).Shows(1045, "1").Shows(106, memo_1);
    visit.Shows(107, memo_2).Shows(108, text).Shows(102, picture).Click(1);
    Call(visit);
    EXPECT_EQ(folder.Read(kAlbum), std::nullopt);
  }
}

TEST_F(AlbumRegistTest, EnterBreaksLinesInSixBoxesAndEndsInTheOthers) {
  for (const int id : {101, 104, 105, 129, 106, 107}) script.Focus(id).Enter();
  script.Shows(105, "35.0\r\n").Type(108, "t").Click(117).Shows(1045, "2");
  script.Focus(102).Enter();
  EXPECT_EQ(Call(script), "7|135.0\r\n|35.0\r\n|\r\n|\r\n");
  EXPECT_EQ(folder.Read(kAlbum), "\r\n 35.0\r\n 135.0\r\n \r\n t\r\n");
}

TEST_F(AlbumRegistTest, ATextFileIsChosenInLowerCaseAndGivingUpEmptiesTheBox) {
  script.Type(101, "p").Type(106, "m").Type(108, "Typed.TXT").Click(109).Beeps();
  script.ChoosesFile("/Home/Ａ表/Notes.TXT").Shows(108, "\\home\\Ａ表\\notes.txt").Click(117);
  script.Type(106, "m").Type(108, "Typed.TXT").Click(109).Beeps().ChoosesFile(std::nullopt);
  script.Shows(108, "").Click(117).Shows(1045, "2");
  script.DropFile(108, "/Home/Ａ表.TXT").Shows(108, "\\home\\Ａ表.txt");
  script.DropFile(108, "/home/é|.txt", "|").Shows(108, "\\home\\Ａ表.txt");
  script.DropFile(101, "/home/a.txt").Shows(101, "p").Click(1);
  Call(script);
  EXPECT_EQ(folder.Read(kAlbum), std::string("m 35.0 135.0  \\home\\Ａ表\\notes.txt\r\n"_sj));
  const FileChooserRequest& request = script.LastFileRequest();
  EXPECT_EQ(request.start_name, "*.txt");
  EXPECT_EQ(request.default_extension, "txt");
  EXPECT_TRUE(request.must_exist);
  ASSERT_EQ(request.filters.size(), 2u);
  EXPECT_EQ(request.filters[0].label, "地点 files (*.txt)");
  EXPECT_EQ(request.filters[0].patterns, std::vector<std::string>{"*.txt"});
  EXPECT_EQ(request.filters[1].label, "All files (*.*)");
  EXPECT_EQ(request.filters[1].patterns, std::vector<std::string>{"*"});
  ScriptFrontEnd empty;
  empty.OpensDialog(148).Click(109).Beeps().ChoosesFile(std::nullopt).Click(1);
  Call(empty);
  EXPECT_EQ(empty.LastFileRequest().start_name, (folder.Path() / "*.txt").string())
      << "beside the album";
}

TEST_F(AlbumRegistTest, GivingUpThePictureLeavesItsBoxAlone) {
  script.Click(115).Beeps().ChoosesFile("/X/P.JPG").Shows(102, "\\x\\p.jpg");
  script.Click(115).Beeps().ChoosesFile(std::nullopt).Shows(102, "\\x\\p.jpg");
  script.Type(101, "p").Type(106, "m").Click(117).Click(1);
  Call(script);
  EXPECT_EQ(folder.Read(kAlbum), "m 35.0 135.0  \\x\\p.jpg\r\n");
  const FileChooserRequest& request = script.LastFileRequest();
  EXPECT_EQ(request.start_name, "/x/*.bmp") << "the folder of the picture chosen before";
  EXPECT_EQ(request.default_extension, "bmp");
  EXPECT_EQ(request.filters.at(0).label, "画像 files (*.bmp)");
}

TEST_F(AlbumRegistTest, APathThatTheCodePageCannotTellBeepsAndCountsAsGivenUp) {
  script.Type(108, "t").Type(102, "p");
  script.Click(115).Beeps().ChoosesFile("/鷗.bmp").Beeps().Shows(102, "p");
  script.Click(109).Beeps().ChoosesFile("/鷗.txt").Beeps().Shows(108, "").Escape();
  EXPECT_EQ(Call(script), kGivenUp);
}

TEST_F(AlbumRegistTest, ThePreviewShowsTheFileThatTheFieldHolds) {
  folder.Write("t.txt", "line\r\n");
  const std::string path = (folder.Path() / "t.txt").string();
  script.Click(114).Type(108, path).Click(114);
  script.OpensDialog(133).Shows(102, path).Shows(101, "=====   =====\r\nline\r\n\r\n").Click(1);
  // After an addition the box is empty, and the field isn't until the box is left.
  script.Type(101, "p").Type(106, "m").Click(117).Shows(108, "").Click(114);
  script.OpensDialog(133).Shows(102, path).Escape().Focus(108).Click(114).Click(1);
  EXPECT_EQ(Call(script), "7|135.0|35.0|p|");
}

TEST_F(AlbumRegistTest, AnAdditionThatCannotBeWrittenChangesNothing) {
  script.Escape();
  Call(script);
  PlayOnAFailingDisk({folder, kAlbum,
                      [](ScriptFrontEnd& visit) {
                        visit.OpensDialog(148).Type(101, "p");
                        for (int i = 0; i < 2; ++i) Fill(visit, "m", "n", "t", "").Click(117);
                        Fill(visit, "m", "n", "t", "");
                      },
                      [](ScriptFrontEnd& visit) { visit.Click(117); },
                      [this](ScriptFrontEnd& visit) { Call(visit.Escape()); }});
}

}  // namespace
}  // namespace orreryui
