#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryFile>
#include <QTest>
#include <QToolTip>
#include <QUrl>
#include <ctime>
#include <set>

#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr ControlKind kLine = ControlKind::kEdit;
constexpr ControlKind kLines = ControlKind::kMultiLineEdit;

void Compose(QWidget& widget, const QString& preedit, const QString& commit = {}) {
  QInputMethodEvent event(preedit, {});
  event.setCommitString(commit);
  QApplication::sendEvent(&widget, &event);
}

class Edits : public OnScreen {
 protected:
  // Runs `user` in a box that has the focus.
  template <class Edit, class User>
  void RunInBox(ControlKind kind, const std::string& text, User user) {
    session = {};
    session.Add(kind, 1, text, 60);
    RunAt<Edit>(1, user);
  }
};

TEST_F(Edits, EachKeyReportsTheWholeTextAndAHandlerReplacesIt) {
  for (ControlKind kind : {kLine, kLines}) {
    RunInBox<QWidget>(kind, "鎌\u00A0倉", [&](QWidget& edit) {
      QTest::keyClick(&edit, Qt::Key_End);
      QTest::keyClicks(&edit, "12");
      EXPECT_THAT(session.Take(), ElementsAre("type 1 鎌\u00A0倉1", "type 1 鎌\u00A0倉12"));
      QMetaObject::invokeMethod(&edit, "undo");
      EXPECT_EQ(session.Take().back(), "type 1 鎌\u00A0倉");
      session.Change(1, [](ControlView& view) { view.text = "登録されました！"; });
      EXPECT_THAT(session.Take(), ElementsAre());
      EXPECT_EQ(edit.property(kind == kLine ? "text" : "plainText"), "登録されました！");
    });
  }
}

TEST_F(Edits, RefusedCharactersAreLeftOutAndNamed) {
  for (ControlKind kind : {kLine, kLines, ControlKind::kComboBox, ControlKind::kSimpleComboBox}) {
    RunInBox<QWidget>(kind, "abc", [&](const QWidget&) {
      session.refused_characters = "x";
      QWidget* const edit = QApplication::focusWidget();
      ASSERT_NE(edit, nullptr);
      QTest::keyClick(edit, Qt::Key_Home);
      QTest::keyClick(edit, Qt::Key_Right);
      QTest::keyClicks(edit, "xy");
      EXPECT_EQ(session.At(1).text, "aybc");
      EXPECT_THAT(session.Take(), ElementsAre("type 1 abc", "type 1 aybc"));
      EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("x"));
      EXPECT_EQ(edit->inputMethodQuery(Qt::ImSurroundingText).toString(), "aybc");
      EXPECT_EQ(edit->inputMethodQuery(Qt::ImCursorPosition).toInt(), 2);
    });
  }
}

TEST_F(Edits, CompositionKeepsItsTextAndItsKeys) {
  for (ControlKind kind : {kLine, kLines}) {
    RunInBox<QWidget>(kind, "", [&](QWidget& edit) {
      Compose(edit, "やま");
      QTest::keyClick(&edit, Qt::Key_Return);
      QTest::keyClick(&edit, Qt::Key_Escape);
      EXPECT_THAT(session.Take(), ElementsAre());
      Compose(edit, {}, "山");
      QTest::keyClick(&edit, Qt::Key_Escape);
      EXPECT_THAT(session.Take(), ElementsAre("type 1 山", "escape"));
    });
  }
}

TEST_F(Edits, EnterBreaksTheLineAtTheCursorWhateverKeysAreHeld) {
  const Qt::KeyboardModifiers held[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier,
                                        Qt::AltModifier, Qt::KeypadModifier};
  for (const Qt::KeyboardModifiers modifiers : held) {
    RunInBox<QPlainTextEdit>(kLines, "一\r\n二三", [&](QPlainTextEdit& edit) {
      EXPECT_EQ(edit.toPlainText(), "一\n二三");
      edit.moveCursor(QTextCursor::End);
      edit.moveCursor(QTextCursor::PreviousCharacter);
      const bool keypad = modifiers == Qt::KeypadModifier;
      QTest::keyClick(&edit, keypad ? Qt::Key_Enter : Qt::Key_Return, modifiers);
      EXPECT_THAT(session.Take(), ElementsAre("type 1 一\r\n二\r\n三"));
      EXPECT_EQ(edit.textCursor().position(), 4);
      edit.undo();
      EXPECT_THAT(session.Take(), ElementsAre("type 1 一\r\n二三"));
      edit.moveCursor(QTextCursor::End);
      QTest::keyClick(&edit, Qt::Key_Return);
      QTest::keyClick(&edit, Qt::Key_4);
      EXPECT_EQ(session.Take().back(), "type 1 一\r\n二三\r\n4");
      EXPECT_EQ(edit.toPlainText(), "一\n二三\n4");
    });
  }
}

TEST_F(Edits, AFileDroppedOntoABoxForOneIsReportedAndShownAsTheModelHasIt) {
  session.Add(kLine, 1, "a").takes_file = true;
  session.Add(kLine, 2, "b");
  session.refused_characters = "z";
  QTemporaryFile file(QDir::tempPath() + "/図zXXXXXX");
  ASSERT_TRUE(file.open());
  Run([&](QDialog& window) {
    const auto drop = [&](int id, const QList<QUrl>& urls) {
      QMimeData data;
      data.setUrls(urls);
      auto& box = ControlWidget<QLineEdit>(window, id);
      QDragEnterEvent enter({2, 2}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(&box, &enter);
      QDropEvent dropped({2, 2}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      if (enter.isAccepted()) QApplication::sendEvent(&box, &dropped);
      return box.text();
    };
    const QUrl url = QUrl::fromLocalFile(file.fileName());
    const QString expected = "at " + file.fileName().remove('z');
    EXPECT_EQ(drop(1, {url}), expected);
    EXPECT_THAT(session.Take(), ElementsAre("type 1 " + expected.toStdString()));
    EXPECT_TRUE(QToolTip::text().contains('z')) << "it says what it left out";
    EXPECT_EQ(drop(2, {url}), "b") << "a box for a text takes no file";
    for (const QList<QUrl>& others : {QList<QUrl>{url, url}, {QUrl::fromLocalFile("/")}}) {
      EXPECT_EQ(drop(1, others), expected);
    }
  });
}

TEST_F(Edits, ATextWithoutABreakTakesNoLongerThanItsLength) {
  const std::string text(300'000, 'a');
  const int heights[] = {14, 14, 60};
  const ControlKind kinds[] = {ControlKind::kStatic, kLines, kLines};
  for (int i = 0; i < 3; ++i) session.Add(kinds[i], i + 1, text, heights[i]);
  const std::clock_t start = std::clock();
  Run([&](QDialog& window) { window.grab(); });
  EXPECT_LT(std::clock() - start, 20 * CLOCKS_PER_SEC)
      << "going through it for each line takes minutes";
}

TEST_F(Edits, ALongTextShowsItsBeginning) {
  const std::string text(200, 'x');
  session.Add(ControlKind::kPushButton, 1, "OK");
  session.Add(kLine, 2, text);
  for (int id : {3, 4}) {
    const bool has_popup = id == 3;
    session.Add(has_popup ? ControlKind::kComboBox : ControlKind::kSimpleComboBox, id, text, 60);
    session.At(id).rows = {{text}};
  }
  Run([&](QDialog& window) {
    const QList<QLineEdit*> fields = window.findChildren<QLineEdit*>();
    ASSERT_EQ(fields.size(), 3);
    for (QLineEdit* field : fields) EXPECT_EQ(field->cursorPosition(), 0);
    for (int tabs = 0; tabs < 3; ++tabs) QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    for (QLineEdit* field : fields) EXPECT_EQ(field->cursorPosition(), 0);
    EXPECT_EQ(ControlWidget<QWidget>(window, 4).findChild<QLineEdit*>()->selectedText().size(),
              200);
  });
}

TEST_F(Edits, LinesStandAtTheSideAndHaveTheScrollBarThatTheControlNames) {
  session.Add(kLines, 1, "35", 40).right_aligned = true;
  session.Add(kLines, 2, "35", 40).tall_scroll_bar = true;
  Run([&](QDialog& window) {
    auto& right = ControlWidget<QPlainTextEdit>(window, 1);
    const auto& left = ControlWidget<QPlainTextEdit>(window, 2);
    EXPECT_EQ(right.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    EXPECT_EQ(left.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    const int middle = right.viewport()->width() / 2;
    EXPECT_GT(right.cursorRect().left(), middle);
    EXPECT_LT(left.cursorRect().left(), middle);
    session.Change(1, [](ControlView& view) { view.text = "139\r\n35"; });
    right.moveCursor(QTextCursor::End);
    EXPECT_GT(right.cursorRect().left(), middle);
    session.Change(1, [](ControlView& view) { view.right_aligned = false; });
    EXPECT_LT(right.cursorRect().left(), middle);
  });
}

TEST_F(Edits, ABoxTooLowForTwoLinesHasThemInOneRowWithAMarkBetween) {
  session.Add(kLines, 1, "", 15);
  RunAt<QPlainTextEdit>(1, [&](QPlainTextEdit& edit) {
    const auto cursor = [&] {
      edit.grab();  // the row is where it was drawn
      return edit.inputMethodQuery(Qt::ImCursorRectangle).toRectF();
    };
    const auto click = [&](qreal x) {
      QTest::mouseClick(edit.viewport(), Qt::LeftButton, {}, QPoint(int(x), edit.height() / 2));
      return edit.textCursor().position();
    };
    const QRectF start = cursor();
    EXPECT_NEAR(start.center().y(), edit.rect().center().y(), 1);
    QTest::keyClicks(&edit, "ab");
    const QRectF line_end = cursor();
    const QRect first_line(edit.rect().topLeft(), QSize(int(line_end.left()), edit.height()));
    const QImage before = edit.grab(first_line).toImage();
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(edit.grab(first_line).toImage(), before);
    const QRectF next_line = cursor();
    EXPECT_GT(next_line.left(), line_end.left() + 4);
    EXPECT_EQ(next_line.top(), start.top());
    QTest::keyClicks(&edit, "cd");
    EXPECT_EQ(session.Take().back(), "type 1 ab\r\ncd");
    EXPECT_EQ(click(start.left()), 0);
    EXPECT_EQ(click(next_line.left() + 1), 3);
    EXPECT_EQ(click(edit.width() - 5), 5);

    QTest::keyClicks(&edit, QString(100, 'x'));
    EXPECT_GT(cursor().left(), edit.width() / 2);
    EXPECT_LT(cursor().right(), edit.width());
    QTest::keyClick(&edit, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(cursor(), start);
    for (QScrollBar* bar : edit.findChildren<QScrollBar*>()) EXPECT_FALSE(bar->isVisible());
  });
}

// The first column that has a dark pixel.
int LeftOfText(QWidget& widget) {
  const QImage picture = widget.grab().toImage();
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y) {
      if (picture.pixelColor(x, y).lightness() < 100) return x;
    }
  }
  return -1;
}

TEST_F(Edits, TextBeginsAtOneEdgeInBoxesOfAllKinds) {
  session.Add(ControlKind::kPushButton, 4);
  session.Add(kLine, 1, "H");
  session.Add(kLines, 2, "H", 15);
  session.Add(kLines, 3, "H", 40);
  Run([](QDialog& window) {
    std::set<int> edges;
    for (int id : {1, 2, 3}) edges.insert(LeftOfText(ControlWidget<QWidget>(window, id)));
    EXPECT_EQ(edges.size(), 1u);
  });
}

TEST_F(Edits, TabGoesOnInTheOrderOfTheControlsWhichAreNamedByTheTextBefore) {
  session.Add(ControlKind::kStatic, kNoControlId, "新規ﾌｧｲﾙ");
  session.Add(kLine, 3);
  session.Add(kLines, 1);
  session.Add(ControlKind::kStatic, kNoControlId, "番号");
  session.Add(ControlKind::kComboBox, 2);
  Run([&](QDialog& window) {
    for (int tab = 0; tab < 3; ++tab) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_THAT(session.Take(), ElementsAre("focus 1", "focus 2", "focus 3"));
    EXPECT_EQ(ControlWidget<QWidget>(window, 3).accessibleName(), "新規ﾌｧｲﾙ");
    EXPECT_EQ(ControlWidget<QWidget>(window, 2).accessibleName(), "番号");
  });
}

}  // namespace
}  // namespace orreryui
