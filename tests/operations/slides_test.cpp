// Both dialogs about slide shows.
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
  ScriptFrontEnd manual;
  manual.OpensDialog(135).ShowsCheck(1353, false).ShowsCheck(1354, true).Shows(1042, "0").Escape();
  EXPECT_EQ(Play(manual, [] { return OnDlgMenuBarSlideSet("none/", "auto", 5); }), "");
}

TEST(SlideTest, AClickChangesItsFieldAndNoOther) {
  using Call = CString();
  constexpr Call* kKnown = [] { return OnSlideSet(1, 5, 1, "ON", "AUTO", "on", "off", "off"); };
  constexpr Call* kUnknown = [] { return OnSlideSet(7, 0, 5, "on", "auto", "ON", "", "x"); };
  constexpr Call* kLong = [] { return OnSlideSet(0, INT_MAX - 1, 1, "", "", "", "", ""); };
  constexpr Call* kShort = [] { return OnSlideSet(4, INT_MIN, 1, "", "", "", "", ""); };
  const struct {
    Call* call;
    Ids clicks, on;  // the buttons that are on after the clicks
    const char* result;
  } cases[] = {
      {kKnown, {}, {136, 1016, 1018, 214, 1052, 1025}, "1|5|1|ON|AUTO|on|off|off"},
      {kKnown, {138, 1018, 214, 1052, 215}, {138, 1016, 215, 1025}, "3|5|1|OFF|AUTO|off|on|on"},
      {kKnown, {137, 1026, 103}, {137, 1016, 1018, 214, 1052, 1026}, "2|6|2|ON|AUTO|on|off|off"},
      {kUnknown, {}, {1017, 1026}, "7|0|5|on|auto|ON||x"},
      {kUnknown, {1018, 214, 1052, 215}, {1017, 214, 1052, 1026}, "7|0|5|ON|auto|off|off|off"},
      {kUnknown, {1018, 1018, 215, 215, 1026}, {1017, 1018, 215, 1026}, "7|0|2|on|auto|on|on|x"},
      {kUnknown, {136, 1016, 1025}, {136, 1016, 1025}, "1|0|1|on|AUTO|ON||x"},
      {kKnown, {1017, 109}, {136, 1017, 1018, 214, 1052, 1025}, "1|4|1|ON|MANUAL|on|off|off"},
      {kLong, {103, 103}, {1017, 1025}, "0|2147483647|1|||||"},
      {kShort, {109, 109}, {1017, 1025}, "4|1|1|||||"},
  };
  for (const auto& [call, clicks, on, result] : cases) {
    ScriptFrontEnd script;
    const std::string rest = std::string(result).substr(2);
    Visit(script, 142, clicks).Shows(101, rest.substr(0, rest.find('|'))).Type(101, "99");
    for (const int id : {136, 137, 138, 1016, 1017, 1018, 214, 1052, 215, 1025, 1026}) {
      script.ShowsCheck(id, std::ranges::find(on, id) != on.end());
    }
    EXPECT_EQ(Play(script.Click(1), call), result);
  }
}

}  // namespace
}  // namespace orreryui
