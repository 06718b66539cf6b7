#include "appearance/region_dialog.h"

#include "tests/support/play.h"

namespace orreryui {
namespace {

constexpr int kWhole = 1484;
constexpr int kHokkaido = kWhole + 1, kIwate = kWhole + 3, kFukushima = kWhole + 7;
constexpr int kTokyo = kWhole + 13, kKanagawa = kWhole + 14, kOkinawa = kWhole + 47;

class RegionDialogTest : public testing::Test {
 protected:
  RegionDialogTest() { script.OpensDialog(179); }

  int Run() {
    return Play(script, [this] { return dialog.DoModal(); });
  }

  // Looks that these buttons are down, and no others.
  void ShowsDown(const std::vector<int>& down) {
    for (int id = kWhole; id <= kOkinawa; ++id) {
      script.ShowsCheck(id, std::find(down.begin(), down.end(), id) != down.end());
    }
  }

  // The state in which these slots are 1 and the others 0.
  static RegionState Slots(const std::vector<std::size_t>& on) {
    RegionState state = {};
    for (const std::size_t slot : on) state[slot] = 1;
    return state;
  }

  CDlgRegion dialog;
  ScriptFrontEnd script;
};

TEST_F(RegionDialogTest, SeveralMayBeDown) {
  script.ShowsTitle("  地域選択（国土数値情報データを表示する都道府県）");
  script.Click(kIwate);
  ShowsDown({kIwate});
  script.Click(kFukushima);
  ShowsDown({kIwate, kFukushima});
  script.Click(kIwate);
  ShowsDown({kFukushima});
  script.Click(kFukushima);
  ShowsDown({kWhole});
  script.Click(kOkinawa).Click(kHokkaido);
  ShowsDown({kHokkaido, kOkinawa});
  script.Click(1);
  EXPECT_EQ(Run(), IDOK);
  EXPECT_EQ(dialog.m_nState, Slots({1, 47}));
}

TEST_F(RegionDialogTest, OneMayBeDownAlone) {
  dialog.m_nSingle = 1;
  dialog.m_nState[1] = dialog.m_nState[2] = 1;
  script.ShowsTitle(" 都道府県別地図").Shows(kWhole, "日本列島").Shows(1683, "");
  script.Shows(1684, "いずれかの都道府県か日本列島を\n選んでください！");
  script.Click(kTokyo).Click(kKanagawa);
  ShowsDown({kKanagawa});
  script.Click(kKanagawa);
  ShowsDown({kKanagawa});
  script.Click(kWhole);
  ShowsDown({kWhole});
  script.Click(kWhole);
  ShowsDown({kWhole});
  script.Click(kTokyo).Click(1);
  EXPECT_EQ(Run(), IDOK);
  EXPECT_EQ(dialog.m_nState, Slots({13}));
}

TEST_F(RegionDialogTest, TheWholeWinsOverThePrefecturesAtTheStart) {
  dialog.m_nState[0] = dialog.m_nState[5] = 1;
  ShowsDown({kWhole});
  script.Click(1);
  EXPECT_EQ(Run(), IDOK);
  EXPECT_EQ(dialog.m_nState, Slots({0}));
}

TEST_F(RegionDialogTest, OtherNumbersAreUpAndAClickMakesThemZero) {
  dialog.m_nState[0] = 2;
  dialog.m_nState[13] = 2147483647;
  dialog.m_nState[14] = 2147483647;
  dialog.m_nState[3] = -1;
  ShowsDown({});
  script.Click(kTokyo).Click(kIwate);
  ShowsDown({});
  script.Click(kKanagawa);
  ShowsDown({kWhole});
  script.Click(2);
  EXPECT_EQ(Run(), IDCANCEL);
}

}  // namespace
}  // namespace orreryui
