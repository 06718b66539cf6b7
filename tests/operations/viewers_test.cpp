// The text view and the memo, played on real files.

#include <orreryui/orreryui.h>

#include "tests/support/play.h"

namespace orreryui {
namespace {

constexpr char kFile[] = "note.txt";
const std::string kHead = "=====   =====\r\n";

// A file, and what the viewers make of it, all in code page 932.
struct Case {
  std::string file;
  std::string main;
  std::string memo;     // without the head line
  std::string preview;  // without the head line
};

std::string Repeat(int count, const std::string& line) {
  std::string text;
  for (int i = 0; i < count; ++i) text += line;
  return text;
}

std::vector<Case> Cases() {
  const std::string japanese = "ｶﾀｶﾅ 鎌倉①\r\n"_sj;
  const std::string user_defined = "\xF0\x40\xF9\xFC\r\n";
  const std::string full(3198, 'a');
  const std::string half_pair = std::string(3197, 'a') + "\x82";
  return {
      {"", "", "", ""},
      // One line end.
      {"\n", "\r\n\r\n", "", "\r\n\r\n"},
      // Main text and memo.
      {"a\r\n999\r\nb\r\nc", "a\r\n", "b\r\nc\r\n", "a\r\n999\r\nb\r\nc\r\n"},
      // The mark twice.
      {"999\n999\n;b\n\nc\n999\nd", "", ";b\r\n\r\nc\r\nd\r\n",
       "999\r\n999\r\n;b\r\n\r\nc\r\n999\r\nd\r\n"},
      // The mark at the end, with its line end.
      {"a\r\n999\r\n", "a\r\n", "\r\n", "a\r\n999\r\n\r\n"},
      // Almost the mark.
      {" 999\n999 \n0999\n9990", " 999\r\n999 \r\n0999\r\n9990\r\n", "",
       " 999\r\n999 \r\n0999\r\n9990\r\n"},
      // A comment is text.
      {";a\r\nM b\r\n\r\n;c", ";a\r\nM b\r\n\r\n;c\r\n", "", ";a\r\nM b\r\n\r\n;c\r\n"},
      // Half-width katakana, a special character and user-defined ones.
      {japanese + user_defined, japanese + user_defined + "\r\n", "",
       japanese + user_defined + "\r\n"},
      // 16 lines.
      {Repeat(15, "a\n") + "b", Repeat(15, "a\r\n") + "b\r\n", "", Repeat(15, "a\r\n") + "b\r\n"},
      // 16 lines and an empty one.
      {Repeat(16, "a\n"), Repeat(16, "a\r\n") + "\r\n", "", Repeat(16, "a\r\n")},
      // 3197 bytes.
      {full.substr(1), full.substr(1) + "\r\n", "", full.substr(1) + "\r\n"},
      // 3198 bytes.
      {full, full + "\r\n", "", full.substr(1) + "\r\na\r\n"},
      // 3199 bytes.
      {full + "a\r\nb", full + "\r\na\r\nb\r\n", "", full.substr(1) + "\r\naa\r\nb\r\n"},
      // A character cut in two.
      {half_pair + "\xA0", half_pair + "\r\n\xA0\r\n", "",
       half_pair.substr(0, 3197) + "\r\n\x82\xA0\r\n"},
      // The rest of a long line is a line.
      {full + "999\nb", full + "\r\n", "b\r\n", full.substr(1) + "\r\na999\r\nb\r\n"},
      // Bytes that are no text.
      {std::string("a\0b\r\nc\rd\x1A\xFF\x80\n\x81", 13), "a\r\nc\rd\x1A\xFF\x80\r\n\x81\r\n", "",
       "a\r\nc\rd\x1A\xFF\x80\r\n\x81\r\n"},
  };
}

class ViewersTest : public testing::Test {
 protected:
  CString Path() const { return folder.Argument() + kFile; }

  // What the box shows. The dialog is closed by Esc.
  std::string Box(int dialog, int id, const std::function<void()>& call) {
    std::string text;
    ScriptFrontEnd script;
    script.OpensDialog(dialog).Does([&text, id](ControlSession& session) {
      text = ControlOf(session, id).text;
      return "";
    });
    script.Escape();
    Play(script, call);
    return text;
  }

  std::string Main(const CString& path) {
    return Box(152, 1050, [&] { OnTextDisplayDaialog(path, "", ""); });
  }
  std::string Memo(int mode, const CString& path, const CString& text) {
    return Box(133, 101, [&] { OnMemoDisplay(mode, 0, path, text); });
  }

  TestFolder folder;
};

TEST_F(ViewersTest, EachShowsItsPartOfTheFile) {
  for (const Case& one : Cases()) {
    SCOPED_TRACE(one.file);
    folder.Write(kFile, one.file);
    EXPECT_EQ(Main(Path()), ToUtf8(one.main));
    EXPECT_EQ(Memo(1, Path(), "dropped"), ToUtf8(kHead + one.memo));
    EXPECT_EQ(Memo(2, Path(), "dropped"), ToUtf8(kHead + one.preview));
    EXPECT_EQ(folder.Read(kFile), one.file);
  }
}

TEST_F(ViewersTest, WhatCannotBeReadIsEmpty) {
  for (const CString& path : {Path(), CString(), folder.Argument(), CString("\x81|*?")}) {
    EXPECT_EQ(Main(path), "");
    EXPECT_EQ(Memo(1, path, "dropped"), kHead);
    EXPECT_EQ(Memo(2, path, "dropped"), kHead);
  }
}

TEST_F(ViewersTest, AnyOtherModeShowsTheTextOfTheCaller) {
  folder.Write(kFile, "a\n999\nb");
  const std::string text = "メモ|%s\n999\r\n";
  for (const int mode : {0, 3, -1}) EXPECT_EQ(Memo(mode, Path(), "メモ|%s\n999\r\n"_sj), text);
}

TEST_F(ViewersTest, TheTextViewShowsCaptionAndPathAndDropsWhatIsTyped) {
  const std::string name = "ｶﾀｶﾅ ソ.txt";
  folder.Write(name, "a");
  const CString path = folder.Argument() + "ｶﾀｶﾅ ソ.TXT"_sj;
  ScriptFrontEnd script;
  script.OpensDialog(152).ShowsTitle("<b>東京</b> %s ｶﾞｲﾄﾞ").Shows(1051, ToUtf8(path));
  script.Shows(1050, "a\r\n").Enter().Shows(1050, "a\r\n\r\n").Type(1050, "b").Click(1);
  script.OpensDialog(152).ShowsTitle(" ").Shows(1050, "a\r\n").Focus(1).Enter();
  script.OpensDialog(152).ShowsTitle(" ").Click(1);
  Play(script, [&] {
    OnTextDisplayDaialog(path, "<b>東京</b>"_sj, "%s ｶﾞｲﾄﾞ"_sj);
    OnTextDisplayDaialog(path, "", "");
    OnTextDisplayDaialog("", "", "");
  });
  EXPECT_EQ(folder.Read(name), "a");
}

TEST_F(ViewersTest, TheMemoOpensWhereTheCallerWantsIt) {
  const std::tuple<int, Placement, int, int> cases[] = {{1, Placement::kAtPixel, 1, 560},
                                                        {700, Placement::kAtPixel, 700, 560},
                                                        {0, Placement::kAtPosition, 5, 267},
                                                        {-5, Placement::kAtPosition, 5, 267}};
  for (const auto& [left, placement, x, y] : cases) {
    const std::tuple place(placement, x, y);
    ScriptFrontEnd script;
    script.OpensDialog(133).ShowsTitle("    メモ（連絡先／画像説明）").Shows(102, "no\\such");
    script.Does([place](ControlSession& session) {
      const DialogLayout layout = session.Layout();
      return place == std::tuple(layout.placement, layout.x, layout.y) ? "" : "wrong place";
    });
    script.Type(101, "typed").Click(1);
    Play(script, [&, left = left] { OnMemoDisplay(0, left, "no\\such", "text"); });
  }
}

}  // namespace
}  // namespace orreryui
