#include "host/host_window.h"

#include <gtest/gtest.h>

#include <QPushButton>

#include "host/visitor.h"

namespace orreryui::host {
namespace {

class HostWindowTest : public testing::Test {
 protected:
  void Choose(const char* operation) {
    auto* const list = window_.findChild<QListWidget*>("operations");
    list->setCurrentItem(list->findItems(operation, Qt::MatchExactly).at(0));
  }

  // Presses the button of the window and plays the visit in what opens.
  void CallAndPlay(const std::vector<Step>& steps) {
    const Visitor visitor({"", steps, ""}, "");
    window_.findChild<QPushButton*>("call")->click();
    EXPECT_EQ(visitor.Failures().join('\n').toStdString(), "");
  }

  QLineEdit& Editor(const char* argument) { return *window_.findChild<QLineEdit*>(argument); }

  std::string FieldValue(int row) {
    const auto* const item = window_.findChild<QTableWidget*>("fields")->item(row, 1);
    return item ? item->text().toStdString() : "";
  }

  HostWindow window_;
};

TEST_F(HostWindowTest, PassesInWhatTheLastCallHandedBack) {
  Choose("OnDataSourceSet");
  const auto toggle_and_pick = [](Hand& hand) {
    hand.Click(1020);
    hand.PickFromCombo(135, 1);
    hand.Click(1);
  };
  CallAndPlay({{134, toggle_and_pick}});
  EXPECT_EQ(FieldValue(0), "1");
  EXPECT_EQ(FieldValue(2), "鎌倉の寺社");
  EXPECT_EQ(Editor("SELECTED").text(), "1");
  EXPECT_EQ(Editor("COMMON-AREA").text(), "off");

  Choose("OnRengeConfirm");
  Choose("OnDataSourceSet");
  CallAndPlay({{134, [](Hand& hand) { hand.Click(1); }}});
  EXPECT_EQ(FieldValue(0), "1");
  EXPECT_EQ(FieldValue(1), "off");
}

TEST_F(HostWindowTest, SaysWhyACallWasNotMade) {
  Choose("OnDataSourceSet");
  Editor("SELECTED").setText("first");
  CallAndPlay({});
  EXPECT_TRUE(window_.findChild<QLabel*>("result")->text().contains("isn't an integer"));
  EXPECT_EQ(Editor("SELECTED").text(), "first");
}

}  // namespace
}  // namespace orreryui::host
