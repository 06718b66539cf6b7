// The retrieval sheet on the screen: the rivers of a prefecture, by keyboard and by mouse.
#include <gtest/gtest.h>
#include <orreryui/orreryui.h>

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTreeView>

#include "platform/dialogs/front_end_loader.h"
#include "platform/strings/code_page_932.h"
#include "tests/qt/plugin.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

constexpr int kTabs = 1149, kDisplayOnly = 1152, kSave = 1153;
constexpr int kMesh = 1007, kAdmin = 1005, kLarge = 1001, kMiddle = 1002, kSmall = 1003;
constexpr int kWord = 1004, kClear = 1032;

constexpr char kRivers[] =
    "0|0|0|3|2|2|12|1|1|0||自然地名|湖沼･河川･湖･岸地形|河川･用水･運河||13|東京都|川";

class RetrievalOnScreen : public testing::Test {
 protected:
  static std::string Call(const std::function<void(QWidget& sheet)>& user) {
    ThenInFront(user);
    return ToUtf8(OnGnpfRetrieveSet(110, 0, 0, -9999, 0, -1, -1, -1, -1, "", "", ""));
  }

  static void Press(const QWidget& sheet, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(sheet.focusWidget(), key, modifiers);
  }
  // As a keyboard with such a key does.
  static void Type(const QWidget& sheet, const QString& text) {
    QTest::sendKeyEvent(QTest::Click, sheet.focusWidget(), Qt::Key_unknown, text, Qt::NoModifier);
  }
  static void Click(QWidget& sheet, int id) {
    auto& button = ControlWidget<QAbstractButton>(sheet, id);
    QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
  }
  static void PickByMouse(QWidget& sheet, int id, int row) {
    auto& combo = ControlWidget<QComboBox>(sheet, id);
    QTest::mouseClick(&combo, Qt::LeftButton, {}, {combo.width() - 5, combo.height() / 2});
    QAbstractItemView& list = *combo.view();
    const QModelIndex index = combo.model()->index(row, 0);
    list.scrollTo(index);
    const QPoint place = list.visualRect(index).center();
    QTest::mouseMove(list.viewport(), place);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  }

  ScopedFrontEnd screen_{LoadFrontEnd()};
};

TEST_F(RetrievalOnScreen, ByKeyboard) {
  const std::string result = Call([](QWidget& sheet) {
    for (const int row : {-1, 12, 2, 1, 1, -1}) {
      Press(sheet, Qt::Key_Tab);
      for (int i = 0; i <= row; ++i) Press(sheet, Qt::Key_Down);
    }
    Type(sheet, "川");
    Press(sheet, Qt::Key_Return);
  });
  EXPECT_EQ(result, kRivers);
}

TEST_F(RetrievalOnScreen, ByMouse) {
  const std::string result = Call([](QWidget& sheet) {
    for (const auto& [id, row] : {std::pair(kAdmin, 12), {kLarge, 2}, {kMiddle, 1}, {kSmall, 1}}) {
      PickByMouse(sheet, id, row);
    }
    QTest::mouseClick(&ControlWidget<QWidget>(sheet, kWord), Qt::LeftButton);
    Type(sheet, "川");
    Click(sheet, 1);
  });
  EXPECT_EQ(result, kRivers);
}

TEST_F(RetrievalOnScreen, KeysWalkThroughThePageAndChangeTheTabFromAnyWidget) {
  constexpr auto kControl = Qt::ControlModifier;
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, int> keys[] = {
      {Qt::Key_Tab, kControl, 1},
      {Qt::Key_PageDown, kControl, 1},
      {Qt::Key_Backtab, kControl | Qt::ShiftModifier, 2},
      {Qt::Key_PageUp, kControl, 2}};
  Call([&](QWidget& sheet) {
    const auto& bar = ControlWidget<QTabBar>(sheet, kTabs);
    for (const int id :
         {kMesh, kAdmin, kLarge, kMiddle, kSmall, kWord, kClear, kDisplayOnly, 1, 2, kTabs}) {
      Press(sheet, Qt::Key_Tab);
      QWidget& widget = *sheet.focusWidget();
      EXPECT_EQ(widget.objectName(), QString::number(id));
      for (const auto& [key, modifiers, tab] : keys) {
        Press(sheet, key, modifiers);
        EXPECT_EQ(bar.currentIndex(), tab) << id;
        for (int i = tab; i < 3; ++i) Press(sheet, Qt::Key_PageDown, kControl);
        widget.setFocus(Qt::TabFocusReason);
      }
    }
    EXPECT_EQ(ControlWidget<QComboBox>(sheet, kLarge).currentIndex(), -1);
    Press(sheet, Qt::Key_Escape);
  });
}

TEST_F(RetrievalOnScreen, AFileOfTheListIsAddedTo) {
  const TestFolder folder;
  folder.Write("River.CSV", std::string(1500, 'x'));
  const std::string result = Call([&](QWidget& sheet) {
    ThenInFront([&](QWidget& front) {
      static_cast<QFileDialog&>(front).setDirectory(folder.Path().c_str());
      auto& rows = *front.findChild<QTreeView*>("treeView");
      const auto row = [&] { return rows.visualRect(rows.model()->index(0, 0, rows.rootIndex())); };
      EXPECT_TRUE(QTest::qWaitFor([&] { return !row().isEmpty(); }));
      QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, row().center());
      EXPECT_TRUE(ControlWidget<QLabel>(front, 1151).text().startsWith("ファイルのサイズ=1.50Kb"));
      QTest::mouseDClick(rows.viewport(), Qt::LeftButton, {}, row().center());
    });
    Click(sheet, kSave);
    Click(sheet, 1);
  });
  EXPECT_TRUE(result.starts_with("0|0|2|") && result.ends_with("\\river.csv|||||||")) << result;
}

}  // namespace
}  // namespace orreryui
