#include <orreryui/orreryui.h>

#include <climits>

#include "tests/support/play.h"

namespace orreryui {
namespace {

using Ids = std::vector<int>;

// Clicks in this dialog and ends it with OK; `call` then returns the result.
ScriptFrontEnd& Visit(ScriptFrontEnd& script, int dialog, const Ids& clicks) {
  script.OpensDialog(dialog).ShowsTitle(" スライドショー");
  for (const int id : clicks) script.Click(id);
  return script;
}

TEST(MenuSlideTest, TellsWhichMenusWereChosen) {
  const struct {
    const char* display;
    int interval;
    Ids clicks;
    const char* result;
  } cases[] = {
      {"AUTO", 1, {}, "0|0|0|0|0|0|0|0|0|-1|1|AUTO"},
      {"AUTO", 5, {1027, 1032}, "1|0|0|0|0|1|0|0|0|1|5|AUTO"},
      {"auto", 5, {1034, 1027, 1027}, "0|0|0|0|0|0|0|1|0|1|5|auto"},
      {"", 5, {1352, 1028}, "1|1|1|1|1|1|1|1|1|1|5|"},
      {"", 5, {1028, 1352, 1352}, "0|1|0|0|0|0|0|0|0|1|5|"},
      {"x", 5, {1353}, "0|0|0|0|0|0|0|0|0|-1|5|AUTO"},
      {"AUTO", 5, {1354}, "0|0|0|0|0|0|0|0|0|-1|5|MANUAL"},
      {"", 3, {1357, 1357}, "0|0|0|0|0|0|0|0|0|-1|2|"},
      {"", INT_MIN, {1357}, "0|0|0|0|0|0|0|0|0|-1|2|"},
      {"", INT_MAX - 1, {1356, 1356}, "0|0|0|0|0|0|0|0|0|-1|2147483647|"},
  };
  for (const auto& c : cases) {
    ScriptFrontEnd script;
    const auto call = [&] { return OnDlgMenuBarSlideSet("", c.display, c.interval); };
    EXPECT_EQ(Play(Visit(script, 135, c.clicks).Click(1), call), c.result);
  }
}

TEST(MenuSlideTest, ShowsTheCountsAndTheSingleChoicesBehindTheWhole) {
  const TestFolder folder;
  folder.Write("SOURCE/MENUFILE.DAT", "00=a@b\n[M\n00=a@b\n01=a@b\n[M\n00=a@\n01=--\n[M\n00=a@b\n");
  ScriptFrontEnd script;
  script.OpensDialog(135).ShowsCheck(1352, false).ShowsCheck(1353, true).ShowsCheck(1354, false);
  script.Shows(1035, "2").Shows(1036, "1").Shows(1037, "").Shows(1041, "").Shows(1042, "1");
  script.Click(1027).Click(1352).ShowsCheck(1034, true).Click(1034).ShowsCheck(1034, false);
  script.Click(1027).ShowsCheck(1027, false).Click(1352);
  script.ShowsCheck(1027, false).ShowsCheck(1028, false).ShowsCheck(1034, true);
  script.Shows(1355, "5").Type(1355, "77").Click(1356).Shows(1355, "6").Escape();
  EXPECT_EQ(Play(script, [&] { return OnDlgMenuBarSlideSet(folder.Argument(), "AUTO", 5); }), "");
}

}  // namespace
}  // namespace orreryui
