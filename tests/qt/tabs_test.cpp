#include <gmock/gmock.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>

#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

using testing::ElementsAre;

class Tabs : public testing::Test {
 protected:
  Tabs() {
    ControlView& tab = sheet_.Add(ControlKind::kTab, 1149, {}, 100);
    tab.rows = {{"地名"}, {"施設"}};
    tab.selection = 0;
    sheet_.Add(ControlKind::kPushButton, 1, "検索");
    sheet_.layout.focus = 1149;
    names_.layout.number = 171;
    names_.Add(ControlKind::kEdit, 20, "川");
    facilities_.layout.number = 174;
    facilities_.Add(ControlKind::kEdit, 30);
    sheet_.pages = {{{1149, 0}, &names_}, {{1149, 1}, &facilities_}};
  }

  FakeSession sheet_;
  FakeSession names_;
  FakeSession facilities_;
};

TEST_F(Tabs, OnlyTheSelectedPageIsShown) {
  RunWithUser(sheet_, [&](QDialog& window) {
    auto& bar = ControlWidget<QTabBar>(window, 1149);
    EXPECT_TRUE(ControlWidget<QWidget>(window, 171).isVisible());
    EXPECT_FALSE(ControlWidget<QWidget>(window, 174).isVisible());
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
    EXPECT_THAT(sheet_.Take(), ElementsAre("pick 1149 1"));
    EXPECT_FALSE(ControlWidget<QWidget>(window, 171).isVisible());
    EXPECT_TRUE(ControlWidget<QWidget>(window, 174).isVisible());
    EXPECT_NE(names_.window, nullptr);
    EXPECT_NE(names_.window, facilities_.window);
  });
}

TEST_F(Tabs, ControlsOfAPageReportToThePageAndKeysToTheSheet) {
  RunWithUser(sheet_, [&](QDialog& window) {
    auto& edit = ControlWidget<QLineEdit>(window, 20);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(edit.hasFocus());
    edit.end(false);
    QTest::keyClicks(&edit, "1");
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_THAT(names_.Take(), ElementsAre("focus 20", "type 20 川1"));
    EXPECT_THAT(sheet_.Take(), ElementsAre("enter"));
    names_.Change(20, [](ControlView& view) { view.text = "山"; });
    EXPECT_EQ(edit.text(), "山");
    QTest::keyClick(&edit, Qt::Key_Tab);
    EXPECT_THAT(sheet_.Take(), ElementsAre("focus 1"));
  });
}

TEST_F(Tabs, APageMayComeIntoBeingAtTheFirstPaint) {
  const auto pages = std::exchange(sheet_.pages, {});
  sheet_.handler = [&](const std::string& gesture) {
    if (gesture == "paint") sheet_.pages = pages;
  };
  RunWithUser(sheet_, [&](QDialog& window) {
    EXPECT_EQ(ControlWidget<QLineEdit>(window, 20).text(), "川");
    EXPECT_TRUE(ControlWidget<QLineEdit>(window, 20).isVisible());
    EXPECT_FALSE(ControlWidget<QLineEdit>(window, 30).isVisible());
  });
}

}  // namespace
}  // namespace orreryui
