#include <orreryui/orreryui.h>

#include "tests/support/play.h"

namespace orreryui {
namespace {

int Confirm(ScriptFrontEnd& script, const char* west, const char* north, const char* east,
            const char* south) {
  return Play(script, [&] { return OnRengeConfirm(west, north, east, south); });
}

TEST(RangeTest, ShowsTheCornersAndTellsWhichButtonEndedIt) {
  ScriptFrontEnd enlarge;
  enlarge.OpensDialog(146).ShowsTitle("マウスで指定した範囲");
  enlarge.Shows(1030, "35.5").Shows(1031, "139.25").Shows(1032, "").Shows(1033, "東経140°|%s");
  enlarge.Click(103);
  EXPECT_EQ(Confirm(enlarge, "139.25", "35.5", "東経140°|%s"_sj, ""), 1);

  ScriptFrontEnd release, escape, by_enter;
  release.OpensDialog(146).Click(2);
  escape.OpensDialog(146).Escape();
  by_enter.OpensDialog(146).Focus(2).Enter();
  EXPECT_EQ(Confirm(release, "1", "2", "3", "4"), -1);
  EXPECT_EQ(Confirm(escape, "1", "2", "3", "4"), -1);
  EXPECT_EQ(Confirm(by_enter, "1", "2", "3", "4"), -1);
}

}  // namespace
}  // namespace orreryui
