#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTreeWidget>

#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

using testing::ElementsAre;

const std::vector<std::vector<std::string>> kRows = {{"alpha"}, {"beta"}, {"gamma"}};

// Clicks into the middle of a row.
void ClickRow(QAbstractItemView& list, int row, int column = 0, bool twice = false) {
  const QPoint place = list.visualRect(list.model()->index(row, column)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  if (!twice) return;
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
}

ControlView& AddList(FakeSession& session, ControlKind kind) {
  ControlView& list = session.Add(kind, 1, {}, kind == ControlKind::kComboBox ? 14 : 80);
  list.rows = kRows;
  return list;
}

TEST(Lists, ClickPicksAlsoTheSelectedRow) {
  FakeSession session;
  AddList(session, ControlKind::kListBox).selection = 1;
  RunWithUser(session, [&](QDialog& window) {
    auto& list = ControlWidget<QListWidget>(window, 1);
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_TRUE(list.item(1)->isSelected());
    ClickRow(list, 1);
    ClickRow(list, 2);
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 1", "pick 1 2"));
  });
}

TEST(Lists, KeysPick) {
  FakeSession session;
  AddList(session, ControlKind::kListBox).selection = 0;
  session.layout.focus = 1;
  RunWithUser(session, [&](QDialog& window) {
    auto& list = ControlWidget<QListWidget>(window, 1);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_G);
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 1", "pick 1 2"));
    EXPECT_EQ(list.currentRow(), 2);
  });
}

TEST(Lists, AKeyPicksTheFirstRowWhereNoneIsSelected) {
  const std::pair<Qt::Key, const char*> cases[] = {
      {Qt::Key_Down, "pick 2 0"}, {Qt::Key_Up, "pick 2 0"},  {Qt::Key_PageDown, "pick 2 0"},
      {Qt::Key_Home, "pick 2 0"}, {Qt::Key_End, "pick 2 1"}, {Qt::Key_Space, "pick 2 0"},
      {Qt::Key_A, "pick 2 0"}};
  for (const ControlKind kind : {ControlKind::kListBox, ControlKind::kReportList}) {
    for (const auto& [key, pick] : cases) {
      FakeSession session;
      session.Add(ControlKind::kPushButton, 1, "OK");
      ControlView& view = session.Add(kind, 2, {}, 80);
      view.columns = {{"名称", 80}};
      view.rows = {{"a"}, {"b"}};
      view.selection = -1;
      RunWithUser(session, [&, key = key, pick = pick](QDialog& window) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget()->objectName(), "2");
        QTest::keyClick(window.focusWidget(), key);
        EXPECT_THAT(session.Take(), testing::Contains(pick)) << key;
      });
    }
  }
}

TEST(Lists, OnlyTheLeftButtonOnARowSelects) {
  for (const ControlKind kind : {ControlKind::kListBox, ControlKind::kReportList}) {
    FakeSession session;
    ControlView& added = session.Add(kind, 1, {}, 120);
    added.columns = {{"名称", 80}};
    added.rows = {{"a"}, {"b"}, {"c"}};
    added.selection = 1;
    RunWithUser(session, [&](QDialog& window) {
      auto& view = ControlWidget<QAbstractItemView>(window, 1);
      QWidget* const area = view.viewport();
      const auto row = [&](int number) {
        return view.visualRect(view.model()->index(number, 0)).center();
      };
      const QPoint below(10, area->height() - 3);
      ASSERT_FALSE(view.indexAt(below).isValid());
      QTest::mouseClick(area, Qt::RightButton, {}, row(2));
      QTest::mouseClick(area, Qt::MiddleButton, {}, row(2));
      QTest::mouseDClick(area, Qt::RightButton, {}, row(2));
      QTest::mouseClick(area, Qt::LeftButton, {}, below);
      QTest::mouseDClick(area, Qt::LeftButton, {}, below);
      QTest::mousePress(area, Qt::LeftButton, {}, below);
      QTest::mouseMove(area, row(2));
      QTest::mouseRelease(area, Qt::LeftButton, {}, row(2));
      EXPECT_THAT(session.Take(), testing::Each(testing::StartsWith("focus")));
      const QModelIndexList selected = view.selectionModel()->selectedRows();
      ASSERT_EQ(selected.size(), 1);
      EXPECT_EQ(selected.front().row(), 1);
      EXPECT_EQ(view.currentIndex().row(), 1);
    });
  }
}

TEST(Lists, SelectionGoesBackWhereTheModelDoesNotFollow) {
  FakeSession session;
  AddList(session, ControlKind::kListBox);
  session.handler = [&](const std::string&) { session.At(1).selection = -1; };
  RunWithUser(session, [&](QDialog& window) {
    auto& list = ControlWidget<QListWidget>(window, 1);
    ClickRow(list, 2);
    EXPECT_TRUE(list.selectedItems().isEmpty());
  });
}

TEST(Lists, AHandlerMayEmptyTheList) {
  FakeSession session;
  AddList(session, ControlKind::kListBox);
  session.handler = [&](const std::string& gesture) {
    if (gesture != "pick 1 2") return;
    session.Change(1, [](ControlView& view) {
      view.rows.clear();
      view.selection = -1;
    });
  };
  RunWithUser(session, [&](QDialog& window) {
    auto& list = ControlWidget<QListWidget>(window, 1);
    ClickRow(list, 2);
    EXPECT_EQ(list.count(), 0);
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 2"));
  });
}

TEST(Lists, ReportListHasColumns) {
  FakeSession session;
  ControlView& view = session.Add(ControlKind::kReportList, 1, {}, 80);
  view.columns = {{"番号", 40}, {"名称", 80}};
  view.rows = {{"1", "鎌倉"}, {"2", "江ノ島"}};
  RunWithUser(session, [&](QDialog& window) {
    auto& tree = ControlWidget<QTreeWidget>(window, 1);
    EXPECT_EQ(tree.headerItem()->text(1), "名称");
    EXPECT_EQ(tree.topLevelItem(1)->text(1), "江ノ島");
    EXPECT_NEAR(double(tree.columnWidth(1)) / tree.columnWidth(0), 2, 0.1);
    ClickRow(tree, 1, 1, true);
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 1", "double 1 1"));
    session.Change(1, [](ControlView& list) { list.selection = 0; });
    EXPECT_TRUE(tree.topLevelItem(0)->isSelected());
    EXPECT_THAT(session.Take(), ElementsAre());
  });
}

TEST(Combos, PopupPicksAlsoTheSelectedRow) {
  FakeSession session;
  ControlView& view = AddList(session, ControlKind::kComboBox);
  view.selection = 1;
  view.text = "beta";
  session.layout.focus = 1;
  RunWithUser(session, [&](QDialog& window) {
    auto& combo = ControlWidget<QComboBox>(window, 1);
    EXPECT_EQ(combo.currentText(), "beta");
    for (int row : {1, 2}) {
      combo.showPopup();
      combo.view()->setCurrentIndex(combo.model()->index(row, 0));
      QTest::keyClick(combo.view(), Qt::Key_Return);
    }
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 1", "pick 1 2"));
    EXPECT_EQ(combo.currentText(), "gamma");
  });
}

TEST(Combos, TheWheelTurnsOnlyTheBoxThatHasTheFocus) {
  FakeSession session;
  AddList(session, ControlKind::kComboBox).selection = 0;
  session.Add(ControlKind::kPushButton, 2, "次");
  session.layout.focus = 2;
  RunWithUser(session, [&](QDialog& window) {
    auto& combo = ControlWidget<QComboBox>(window, 1);
    const auto turn = [&] {
      QWheelEvent down(QPointF(5, 5), combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {},
                       Qt::NoScrollPhase, false);
      QApplication::sendEvent(&combo, &down);
    };
    turn();
    EXPECT_EQ(combo.currentIndex(), 0);
    EXPECT_THAT(session.Take(), ElementsAre());
    combo.setFocus();
    turn();
    EXPECT_THAT(session.Take(), ElementsAre("focus 1", "pick 1 1"));
  });
}

TEST(Combos, EscClosesThePopupAndNotTheDialog) {
  FakeSession session;
  AddList(session, ControlKind::kComboBox);
  session.layout.focus = 1;
  RunWithUser(session, [&](QDialog& window) {
    auto& combo = ControlWidget<QComboBox>(window, 1);
    combo.showPopup();
    QTest::keyClick(combo.view(), Qt::Key_Escape);
    EXPECT_FALSE(combo.view()->isVisible());
    EXPECT_THAT(session.Take(), ElementsAre());
  });
}

TEST(Combos, TypingAnItemsTextPicksNothing) {
  FakeSession session;
  AddList(session, ControlKind::kComboBox);
  session.Add(ControlKind::kPushButton, 2, "次");
  session.layout.focus = 1;
  RunWithUser(session, [&](QDialog& window) {
    auto& combo = ControlWidget<QComboBox>(window, 1);
    QTest::keyClicks(&combo, "bet");
    QTest::keyClick(&combo, Qt::Key_A);
    EXPECT_EQ(session.Take().back(), "type 1 beta");
    QTest::keyClick(&combo, Qt::Key_Return);
    QTest::keyClick(&combo, Qt::Key_Tab);
    EXPECT_THAT(session.Take(), ElementsAre("enter", "focus 2"));
    EXPECT_EQ(combo.currentText(), "beta");
  });
}

TEST(Combos, TextAndSelectionAreIndependent) {
  FakeSession session;
  AddList(session, ControlKind::kComboBox);
  RunWithUser(session, [&](QDialog& window) {
    auto& combo = ControlWidget<QComboBox>(window, 1);
    session.Change(1, [](ControlView& view) { view.text = "ほか"; });
    EXPECT_EQ(combo.currentText(), "ほか");
    EXPECT_EQ(combo.currentIndex(), -1);
    session.Change(1, [](ControlView& view) { view.selection = 2; });
    EXPECT_EQ(combo.currentText(), "ほか");
    EXPECT_EQ(combo.currentIndex(), 2);
    EXPECT_THAT(session.Take(), ElementsAre());
  });
}

TEST(Combos, SimpleComboHasEditAndList) {
  FakeSession session;
  AddList(session, ControlKind::kSimpleComboBox);
  session.layout.focus = 1;
  RunWithUser(session, [&](QDialog& window) {
    auto& frame = ControlWidget<QWidget>(window, 1);
    auto* const edit = frame.findChild<QLineEdit*>("edit");
    auto* const list = frame.findChild<QListWidget*>("list");
    ASSERT_TRUE(edit != nullptr && list != nullptr);
    EXPECT_TRUE(edit->hasFocus());
    ClickRow(*list, 1);
    EXPECT_EQ(edit->text(), "beta");
    EXPECT_TRUE(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_Down);
    EXPECT_EQ(edit->text(), "gamma");
    QTest::keyClick(edit, Qt::Key_End);
    QTest::keyClicks(edit, "!");
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 1", "pick 1 2", "type 1 gamma!"));
  });
}

}  // namespace
}  // namespace orreryui
