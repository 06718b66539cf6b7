// Long texts, which a multi-line edit shows in parts.
#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <string>
#include <utility>

#include "platform/dialogs/dialog.h"
#include "tests/support/play.h"

namespace orreryui {
namespace {

constexpr int kBox = 1;
constexpr int kLines = 100000;

constexpr ControlTemplate kControls[] = {
    {ControlKind::kPushButton, 2, "Close", {0, 0, 10, 10}},
    {ControlKind::kMultiLineEdit, kBox, "", {0, 10, 100, 100}},
};
constexpr DialogTemplate kTemplate = {1, "", Placement::kCentred, 0, 0, 100, 110, kControls};

// The lines from `first` up to but without `last`: each its number and some kana.
std::string Lines(int first, int last) {
  std::string text;
  for (int i = first; i < last; ++i) text += std::to_string(i) + " ｶﾅ かな\r\n";
  return text;
}

std::string Part(int first, int count) {
  std::string part = Lines(first, first + count);
  part.resize(part.size() - 2);
  return part;
}

std::string Numbers(const TextPart& part) {
  return std::to_string(part.first) + " " + std::to_string(part.count) + " " +
         std::to_string(part.all);
}

// What a box that holds `text` shows.
class Box : public CDialog {
 public:
  explicit Box(const std::string& text) : CDialog(kTemplate), text_(FromUtf8(text).bytes.c_str()) {}

  void Show(const std::function<void(ControlSession&)>& steps) {
    ScriptFrontEnd script;
    script.OpensDialog(1).Does([&](ControlSession& session) {
      steps(session);
      return "";
    });
    Play(script.Escape(), [this] { return DoModal(); });
  }

 private:
  void OnInitDialog() override { SetDlgItemText(kBox, text_); }

  CString text_;
};

TEST(TextPart, FindingGoesByCharactersThroughTheWholeTextAndRoundItsEnds) {
  // The second byte of ソ is that of a backslash, and the one of ア is A.
  Box("abソ\\アA\r\nAb").Show([](ControlSession& session) {
    struct Case {
      const char* text;
      int from;
      bool backwards;
      int begin;  // -1: not found
      int end;
    };
    const Case cases[] = {{"AB", 0, false, 0, 2}, {"ab", 1, false, 8, 10}, {"ab", 9, false, 0, 2},
                          {"ab", 8, true, 0, 2},  {"ab", 0, true, 8, 10},  {"\\", 0, false, 3, 4},
                          {"a", 1, false, 5, 6},  {"ソ", 99, false, 2, 3}, {"abc", 0, false, -1, 0},
                          {"", 0, false, -1, 0},  {"é", 0, true, -1, 0}};
    for (const Case& c : cases) {
      const auto found = session.Find(kBox, c.text, c.from, c.backwards);
      ASSERT_EQ(found.has_value(), c.begin >= 0) << c.text;
      if (!found) continue;
      EXPECT_EQ(found->begin, c.begin) << c.text << c.from;
      EXPECT_EQ(found->end, c.end) << c.text << c.from;
    }
    EXPECT_FALSE(session.Find(2, "Close", 0, false));
  });
  Box(Lines(0, kLines)).Show([](ControlSession& session) {
    const auto found = session.Find(kBox, "\n90000 ｶ", 0, false);
    const ControlView view = ControlOf(session, kBox);
    ASSERT_TRUE(found && view.part.first < 90000);
    EXPECT_EQ(found->end - found->begin, 8);
    session.Find(kBox, "70000", found->end, true);
    EXPECT_LT(ControlOf(session, kBox).part.first, 70000);
    EXPECT_EQ(session.Layout().focus, 2);
  });
}

TEST(TextPart, ScrollingShowsTheLinesAroundAndMovesNoFocus) {
  Box(Lines(0, kLines)).Show([](ControlSession& session) {
    EXPECT_EQ(ControlOf(session, kBox).text, Part(0, kLinesOfPart));
    const int half = kLinesOfPart / 2;
    const int last = kLines + 1 - kLinesOfPart;
    const std::pair<int, int> visits[] = {
        {5000, 5000 - half}, {4990, 4990 - half}, {90000, 90000 - half},     {70000, 70000 - half},
        {kLines, last},      {INT_MAX, last},     {kLines + 1 - half, last}, {100, 0},
        {INT_MIN, 0}};
    for (const auto& [line, first] : visits) {
      session.Scroll(kBox, line);
      const ControlView view = ControlOf(session, kBox);
      EXPECT_EQ(Numbers(view.part), Numbers({first, kLinesOfPart, kLines + 1})) << line;
      const bool at_end = first == last;
      const std::string text = at_end ? Lines(first, kLines) : Part(first, kLinesOfPart);
      EXPECT_TRUE(view.text == text) << line;
    }
    EXPECT_EQ(session.Layout().focus, 2);
    session.Scroll(2, 5);
    session.Scroll(999, 5);
  });
}

TEST(TextPart, TypingChangesThePartAndNothingElse) {
  Box box(Lines(0, kLines));
  box.Show([](ControlSession& session) {
    session.Scroll(kBox, 50000);
    const TextPart before = ControlOf(session, kBox).part;
    const std::string part = ControlOf(session, kBox).text;
    EXPECT_EQ(session.Type(kBox, "新\r\n" + part + "\r\n😀行").refused, "😀");
    EXPECT_EQ(ControlOf(session, kBox).text, "新\r\n" + part + "\r\n行");
    EXPECT_EQ(Numbers(ControlOf(session, kBox).part),
              Numbers({before.first, before.count + 2, before.all + 2}));
    dynamic_cast<DialogSession&>(session).Enter();
    EXPECT_EQ(ControlOf(session, kBox).text, "新\r\n" + part + "\r\n行\r\n");
    session.Scroll(kBox, 50000);
    EXPECT_EQ(ControlOf(session, kBox).part.count, kLinesOfPart);
    session.Scroll(kBox, 0);
    session.Type(kBox, "");
    EXPECT_EQ(Numbers(ControlOf(session, kBox).part),
              Numbers({0, 1, before.all + 4 - kLinesOfPart}));
  });
  const int first = 50000 - kLinesOfPart / 2;
  const int behind = first + kLinesOfPart;
  EXPECT_TRUE(ToUtf8(box.GetDlgItemText(kBox)) == "\r\n" + Lines(kLinesOfPart, first) + "新\r\n" +
                                                      Lines(first, behind) + "行\r\n\r\n" +
                                                      Lines(behind, kLines));
}

TEST(TextPart, ATextIsWholeUnlessItIsLongInBytesAndInLines) {
  const std::string megabyte(kLongestWholeText, 'a');
  const std::string empty_lines(kLongestWholeText, '\n');
  const std::pair<std::string, int> cases[] = {
      {"", 1}, {"\r\n", 2}, {empty_lines, 1 << 20 | 1}, {megabyte + "\n" + megabyte, 2}};
  for (const auto& [text, lines] : cases) {
    Box(text).Show([&, text = text, lines = lines](ControlSession& session) {
      EXPECT_TRUE(ControlOf(session, kBox).text == text);
      EXPECT_EQ(ControlOf(session, kBox).part.all, lines);
    });
  }
  Box("\n\r\n" + empty_lines).Show([&](ControlSession& session) {
    EXPECT_EQ(Numbers(ControlOf(session, kBox).part), Numbers({0, kLinesOfPart, (1 << 20) + 3}));
    EXPECT_EQ(ControlOf(session, kBox).text, "\n\r\n" + std::string(kLinesOfPart - 3, '\n'));
    session.Scroll(kBox, 1 << 19);
    EXPECT_EQ(ControlOf(session, kBox).text, std::string(kLinesOfPart - 1, '\n'));
  });
}

}  // namespace
}  // namespace orreryui
