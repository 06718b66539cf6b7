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

// Clicks into the middle of a row.
void ClickRow(QAbstractItemView& list, int row, int column = 0, bool twice = false) {
  const QPoint place = list.visualRect(list.model()->index(row, column)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  if (!twice) return;
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
}

class Lists : public OnScreen {
 protected:
  ControlView& AddList(ControlKind kind) {
    ControlView& list = session.Add(kind, 1, {}, kind == ControlKind::kComboBox ? 14 : 80);
    list.columns = {{"名称", 80}};
    list.rows = {{"alpha"}, {"beta"}, {"gamma"}};
    return list;
  }
};

TEST_F(Lists, ClicksAndKeysPickAndAClickAlsoTheSelectedRow) {
  AddList(ControlKind::kListBox).selection = 1;
  RunAt<QListWidget>(1, [&](QListWidget& list) {
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_TRUE(list.item(1)->isSelected());
    ClickRow(list, 1);
    ClickRow(list, 0);
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 1", "pick 1 0"));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_G, Qt::Key_End}) QTest::keyClick(&list, key);
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 1", "pick 1 2"));
    EXPECT_EQ(list.currentRow(), 2);
  });
}

TEST_F(Lists, AKeyPicksTheFirstRowWhereNoneIsSelected) {
  const std::pair<Qt::Key, const char*> cases[] = {
      {Qt::Key_Down, "pick 1 0"}, {Qt::Key_Up, "pick 1 0"},  {Qt::Key_PageDown, "pick 1 0"},
      {Qt::Key_Home, "pick 1 0"}, {Qt::Key_End, "pick 1 2"}, {Qt::Key_Space, "pick 1 0"},
      {Qt::Key_A, "pick 1 0"}};
  for (const ControlKind kind : {ControlKind::kListBox, ControlKind::kReportList}) {
    for (const auto& [key, pick] : cases) {
      session = {};
      session.Add(ControlKind::kPushButton, 2, "OK");
      AddList(kind);
      Run([&, key = key, pick = pick](QDialog& window) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget()->objectName(), "1");
        QTest::keyClick(window.focusWidget(), key);
        EXPECT_THAT(session.Take(), testing::Contains(pick)) << key;
      });
    }
  }
}

TEST_F(Lists, OnlyTheLeftButtonOnARowSelects) {
  for (const ControlKind kind : {ControlKind::kListBox, ControlKind::kReportList}) {
    session = {};
    AddList(kind).selection = 1;
    RunAt<QAbstractItemView>(1, [&](QAbstractItemView& view) {
      QWidget* const area = view.viewport();
      const QPoint row = view.visualRect(view.model()->index(2, 0)).center();
      const QPoint below(10, area->height() - 3);
      ASSERT_FALSE(view.indexAt(below).isValid());
      QTest::mouseClick(area, Qt::RightButton, {}, row);
      QTest::mouseClick(area, Qt::MiddleButton, {}, row);
      QTest::mouseDClick(area, Qt::RightButton, {}, row);
      QTest::mouseClick(area, Qt::LeftButton, {}, below);
      QTest::mouseDClick(area, Qt::LeftButton, {}, below);
      QTest::mousePress(area, Qt::LeftButton, {}, below);
      QTest::mouseMove(area, row);
      QTest::mouseRelease(area, Qt::LeftButton, {}, row);
      EXPECT_THAT(session.Take(), testing::Each(testing::StartsWith("focus")));
      const QModelIndexList selected = view.selectionModel()->selectedRows();
      ASSERT_EQ(selected.size(), 1);
      EXPECT_EQ(selected.front().row(), 1);
      EXPECT_EQ(view.currentIndex().row(), 1);
    });
  }
}

TEST_F(Lists, ShowWhatAHandlerMakesOfAPick) {
  AddList(ControlKind::kListBox);
  session.handler = [&](const std::string& gesture) {
    session.At(1).selection = -1;
    if (gesture == "pick 1 2") session.Change(1, [](ControlView& view) { view.rows.clear(); });
  };
  RunAt<QListWidget>(1, [&](QListWidget& list) {
    ClickRow(list, 1);
    EXPECT_TRUE(list.selectedItems().isEmpty());
    ClickRow(list, 2);
    EXPECT_EQ(list.count(), 0);
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 1", "pick 1 2"));
  });
}

TEST_F(Lists, ReportListHasColumns) {
  ControlView& view = session.Add(ControlKind::kReportList, 1, {}, 80);
  view.columns = {{"番号", 40}, {"名称", 80}};
  view.rows = {{"1", "鎌倉"}, {"2", "江ノ島"}};
  RunAt<QTreeWidget>(1, [&](QTreeWidget& tree) {
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

TEST_F(Lists, RowsHaveOneHeightWhateverTheirLetters) {
  for (const ControlKind kind : {ControlKind::kListBox, ControlKind::kReportList,
                                 ControlKind::kComboBox, ControlKind::kSimpleComboBox}) {
    session = {};
    AddList(kind).rows = {{"Latin"}, {"漢字"}, {"ｶﾅ"}, {""}};
    Run([&](QDialog& window) {
      if (kind == ControlKind::kComboBox) ControlWidget<QComboBox>(window, 1).showPopup();
      const auto* const view = ControlWidget<QWidget>(window, 1).findChild<QAbstractItemView*>();
      const auto& list = view != nullptr ? *view : ControlWidget<QAbstractItemView>(window, 1);
      for (int row = 1; row < 4; ++row) {
        EXPECT_EQ(list.visualRect(list.model()->index(row, 0)).height(),
                  list.visualRect(list.model()->index(0, 0)).height())
            << int(kind) << ' ' << row;
      }
    });
  }
}

class Combos : public Lists {};

TEST_F(Combos, ThePopupPicksAlsoTheSelectedRowAndFitsTheScreenAndTheModelChangesBothPartsApart) {
  ControlView& view = AddList(ControlKind::kComboBox);
  view.rows.push_back({std::string(2000, 'x')});
  view.selection = 1;
  view.text = "beta";
  RunAt<QComboBox>(1, [&](QComboBox& combo) {
    EXPECT_EQ(combo.currentText(), "beta");
    for (int row : {1, 2}) {
      combo.showPopup();
      EXPECT_LE(combo.view()->width(), combo.screen()->size().width());
      combo.view()->setCurrentIndex(combo.model()->index(row, 0));
      QTest::keyClick(combo.view(), Qt::Key_Return);
    }
    combo.showPopup();
    QTest::keyClick(combo.view(), Qt::Key_Escape);
    EXPECT_FALSE(combo.view()->isVisible());
    EXPECT_EQ(combo.itemData(2, Qt::ToolTipRole), QVariant());
    EXPECT_EQ(combo.itemData(3, Qt::ToolTipRole), combo.itemText(3));
    EXPECT_THAT(session.Take(), ElementsAre("pick 1 1", "pick 1 2"));
    EXPECT_EQ(combo.currentText(), "gamma");
    session.Change(1, [](ControlView& changed) { changed.text = "ほか"; });
    EXPECT_EQ(combo.currentIndex(), 2);
    session.Change(1, [](ControlView& changed) { changed.selection = 0; });
    EXPECT_EQ(combo.currentText(), "ほか");
    EXPECT_EQ(combo.currentIndex(), 0);
    EXPECT_THAT(session.Take(), ElementsAre());
  });
}

TEST_F(Combos, TheWheelTurnsOnlyTheBoxThatHasTheFocus) {
  AddList(ControlKind::kComboBox).selection = 0;
  session.Add(ControlKind::kPushButton, 2, "次");
  session.layout.focus = 2;
  RunAt<QComboBox>(1, [&](QComboBox& combo) {
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

TEST_F(Combos, TypingAnItemsTextPicksNothing) {
  AddList(ControlKind::kComboBox);
  session.Add(ControlKind::kPushButton, 2, "次");
  RunAt<QComboBox>(1, [&](QComboBox& combo) {
    QTest::keyClicks(&combo, "bet");
    QTest::keyClick(&combo, Qt::Key_A);
    EXPECT_EQ(session.Take().back(), "type 1 beta");
    QTest::keyClick(&combo, Qt::Key_Return);
    QTest::keyClick(&combo, Qt::Key_Tab);
    EXPECT_THAT(session.Take(), ElementsAre("enter", "focus 2"));
    EXPECT_EQ(combo.currentText(), "beta");
  });
}

TEST_F(Combos, SimpleComboHasEditAndList) {
  AddList(ControlKind::kSimpleComboBox);
  RunAt<QWidget>(1, [&](QWidget& frame) {
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
