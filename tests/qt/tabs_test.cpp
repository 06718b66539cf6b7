// A sheet with pages on the screen.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <utility>

#include "platform/dialogs/dialog.h"
#include "platform/dialogs/front_end_loader.h"
#include "platform/strings/japanese_literal.h"
#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

constexpr int kTabs = 1149, kName = 20, kMesh = 21, kFacility = 30;

constexpr const char* kCaptions[] = {"地名"_sj, "施設"_sj};
constexpr ControlTemplate kSheetControls[] = {
    {ControlKind::kTab, kTabs, "", {6, 6, 188, 60}, kPlain, kCaptions},
    {ControlKind::kPushButton, IDOK, "検索"_sj, {6, 72, 60, 14}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {72, 72, 60, 14}}};
constexpr DialogTemplate kSheet = {170, "", Placement::kCentred, 0, 0, 200, 92, kSheetControls};
constexpr ControlTemplate kNameControls[] = {{ControlKind::kEdit, kName, "川"_sj, {4, 4, 90, 12}},
                                             {ControlKind::kEdit, kMesh, "", {4, 22, 90, 12}}};
constexpr DialogTemplate kNames = {171, "", Placement::kCentred, 0, 0, 180, 38, kNameControls};
constexpr ControlTemplate kFacilityControls[] = {
    {ControlKind::kEdit, kFacility, "", {4, 4, 90, 12}}};
constexpr DialogTemplate kFacilities = {174, "", Placement::kCentred, 0, 0,
                                        180, 38, kFacilityControls};

class Sheet : public CDialog {
 public:
  explicit Sheet(bool is_late) : CDialog(kSheet), is_late_(is_late) {}

  CDialog names{kNames};
  int oks = 0;

 private:
  void OnInitDialog() override {
    SetCurSel(kTabs, 0);
    SetFocus(IDOK);
    if (!is_late_) AddPages();
  }
  void OnPaint() override {
    if (std::exchange(is_late_, false)) AddPages();
  }
  void AddPages() {
    names.CreatePage(*this, kTabs, 0);
    facilities_.CreatePage(*this, kTabs, 1);
  }
  void OnOK() override { ++oks; }

  bool is_late_;  // the pages come at the first paint
  CDialog facilities_{kFacilities};
};

class Tabs : public testing::TestWithParam<bool> {};

TEST_P(Tabs, APageIsPartOfItsSheet) {
  const ScopedFrontEnd screen(LoadFrontEnd());
  Sheet sheet(GetParam());
  ThenInFront([&](QWidget& front) {
    auto& bar = ControlWidget<QTabBar>(front, kTabs);
    auto& name = ControlWidget<QLineEdit>(front, kName);
    const auto press = [&](Qt::Key key) { QTest::keyClick(front.focusWidget(), key); };
    for (const int id : {IDCANCEL, kTabs, kName, kMesh, IDOK, IDCANCEL, kTabs, kName}) {
      press(Qt::Key_Tab);
      EXPECT_EQ(front.focusWidget()->objectName(), QString::number(id));
    }
    name.end(false);
    QTest::keyClicks(&name, "1");
    press(Qt::Key_Return);
    EXPECT_EQ(sheet.oks, 1);
    EXPECT_EQ(sheet.names.GetDlgItemText(kName), "川1"_sj);
    EXPECT_TRUE(name.hasFocus());
    QTest::mouseClick(&ControlWidget<QPushButton>(front, IDOK), Qt::LeftButton);
    EXPECT_EQ(sheet.oks, 2);
    sheet.names.SetDlgItemText(kName, "山"_sj);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
    EXPECT_EQ(name.text(), "山");
    EXPECT_FALSE(ControlWidget<QWidget>(front, 171).isVisible());
    EXPECT_TRUE(ControlWidget<QWidget>(front, 174).isVisible());
    for (const int id : {kName, kMesh, kFacility}) {
      const auto& edit = ControlWidget<QLineEdit>(front, id);
      EXPECT_TRUE(edit.parentWidget()->rect().contains(edit.geometry())) << id;
    }
    press(Qt::Key_Tab);
    EXPECT_TRUE(ControlWidget<QLineEdit>(front, kFacility).hasFocus());
    press(Qt::Key_Escape);
  });
  EXPECT_EQ(sheet.DoModal(), IDCANCEL);
}

INSTANTIATE_TEST_SUITE_P(EarlyAndLatePages, Tabs, testing::Bool());

}  // namespace
}  // namespace orreryui
