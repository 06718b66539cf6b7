#include <gmock/gmock.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolTip>

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

// Runs `user` in a box that has the focus.
template <class Edit, class User>
void RunInBox(ControlKind kind, const std::string& text, User user) {
  FakeSession session;
  session.Add(kind, 1, text);
  session.layout.focus = 1;
  RunWithUser(session, [&](QDialog& window) { user(session, ControlWidget<Edit>(window, 1)); });
}

TEST(Edits, EachKeyReportsTheWholeText) {
  RunInBox<QLineEdit>(kLine, "鎌倉", [](FakeSession& session, QLineEdit& edit) {
    edit.end(false);
    QTest::keyClicks(&edit, "12");
    EXPECT_THAT(session.Take(), ElementsAre("type 1 鎌倉1", "type 1 鎌倉12"));
    edit.undo();
    EXPECT_EQ(session.At(1).text, edit.text().toStdString());
  });
}

TEST(Edits, RefusedCharactersAreLeftOutAndNamed) {
  for (ControlKind kind : {kLine, kLines, ControlKind::kComboBox, ControlKind::kSimpleComboBox}) {
    FakeSession session;
    session.Add(kind, 1, "abc", 60);
    session.refused_characters = "x";
    session.layout.focus = 1;
    RunWithUser(session, [&](QDialog& window) {
      QWidget* const edit = QApplication::focusWidget();
      ASSERT_NE(edit, nullptr);
      QTest::keyClick(edit, Qt::Key_Home);
      QTest::keyClick(edit, Qt::Key_Right);
      QTest::keyClicks(edit, "xy");
      EXPECT_EQ(session.At(1).text, "aybc");
      EXPECT_THAT(session.Take(), ElementsAre("type 1 abc", "type 1 aybc"));
      EXPECT_THAT(QToolTip::text().toStdString(), HasSubstr("x"));
      const QVariant text = edit->inputMethodQuery(Qt::ImSurroundingText);
      EXPECT_EQ(text.toString(), "aybc");
      EXPECT_EQ(edit->inputMethodQuery(Qt::ImCursorPosition).toInt(), 2);
      static_cast<void>(window);
    });
  }
}

TEST(Edits, CompositionKeepsItsTextAndItsKeys) {
  for (ControlKind kind : {kLine, kLines}) {
    RunInBox<QWidget>(kind, "", [](FakeSession& session, QWidget& edit) {
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

TEST(Edits, LinesAreJoinedByCrLf) {
  FakeSession session;
  session.Add(kLines, 1, "一\r\n二", 40).tall_scroll_bar = true;
  session.layout.focus = 1;
  RunWithUser(session, [&](QDialog& window) {
    auto& edit = ControlWidget<QPlainTextEdit>(window, 1);
    EXPECT_EQ(edit.toPlainText(), "一\n二");
    EXPECT_EQ(edit.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    edit.moveCursor(QTextCursor::End);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_3);
    EXPECT_THAT(session.Take(), ElementsAre("type 1 一\r\n二\r\n", "type 1 一\r\n二\r\n3"));
    EXPECT_EQ(edit.toPlainText(), "一\n二\n3");
  });
}

TEST(Edits, EnterBreaksTheLineAtTheCursorWhateverKeysAreHeld) {
  const Qt::KeyboardModifiers held[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier,
                                        Qt::AltModifier, Qt::KeypadModifier};
  for (const Qt::KeyboardModifiers modifiers : held) {
    RunInBox<QPlainTextEdit>(kLines, "一二", [&](FakeSession& session, QPlainTextEdit& edit) {
      edit.moveCursor(QTextCursor::Start);
      edit.moveCursor(QTextCursor::NextCharacter);
      const bool keypad = modifiers == Qt::KeypadModifier;
      QTest::keyClick(&edit, keypad ? Qt::Key_Enter : Qt::Key_Return, modifiers);
      EXPECT_THAT(session.Take(), ElementsAre("type 1 一\r\n二"));
      EXPECT_EQ(edit.textCursor().position(), 2);
      edit.undo();
      EXPECT_THAT(session.Take(), ElementsAre("type 1 一二"));
    });
  }
}

TEST(Edits, ALongTextShowsItsBeginning) {
  const std::string text(200, 'x');
  FakeSession session;
  session.Add(ControlKind::kPushButton, 1, "OK");
  session.Add(kLine, 2, text);
  for (int id : {3, 4}) {
    ControlView& combo =
        session.Add(id == 3 ? ControlKind::kComboBox : ControlKind::kSimpleComboBox, id, text, 60);
    combo.rows = {{text}};
    combo.selection = -1;
  }
  RunWithUser(session, [&](QDialog& window) {
    const QList<QLineEdit*> fields = window.findChildren<QLineEdit*>();
    ASSERT_EQ(fields.size(), 3);
    for (QLineEdit* field : fields) EXPECT_EQ(field->cursorPosition(), 0);
    for (int tabs = 0; tabs < 3; ++tabs) QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    for (QLineEdit* field : fields) EXPECT_EQ(field->cursorPosition(), 0);
    EXPECT_EQ(ControlWidget<QWidget>(window, 4).findChild<QLineEdit*>()->selectedText().size(),
              200);
  });
}

TEST(Edits, NoBreakSpacesStay) {
  for (ControlKind kind : {kLine, kLines}) {
    RunInBox<QWidget>(kind, "a\u00A0b", [](FakeSession& session, QWidget& edit) {
      QTest::keyClick(&edit, Qt::Key_End);
      QTest::keyClicks(&edit, "c");
      EXPECT_THAT(session.Take(), ElementsAre("type 1 a\u00A0bc"));
    });
  }
}

TEST(Edits, LinesStandAtTheSideThatTheControlNames) {
  FakeSession session;
  session.Add(kLines, 1, "35", 40).right_aligned = true;
  session.Add(kLines, 2, "35", 40);
  RunWithUser(session, [&](QDialog& window) {
    auto& right = ControlWidget<QPlainTextEdit>(window, 1);
    const auto& left = ControlWidget<QPlainTextEdit>(window, 2);
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

TEST(Edits, TextSetByAHandlerReplacesWhatWasTyped) {
  for (ControlKind kind : {kLine, kLines}) {
    RunInBox<QWidget>(kind, "", [&](FakeSession& session, QWidget& edit) {
      session.Change(1, [](ControlView& view) { view.text = "登録されました！"; });
      EXPECT_THAT(session.Take(), ElementsAre());
      EXPECT_EQ(edit.property(kind == kLine ? "text" : "plainText"), "登録されました！");
    });
  }
}

TEST(Edits, TabGoesOnInTheOrderOfTheControls) {
  FakeSession session;
  session.Add(kLines, 3);
  session.Add(kLine, 1);
  session.Add(ControlKind::kComboBox, 2);
  session.layout.focus = 3;
  RunWithUser(session, [&](QDialog&) {
    for (int tab = 0; tab < 3; ++tab) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_THAT(session.Take(), ElementsAre("focus 1", "focus 2", "focus 3"));
  });
}

TEST(Edits, AreNamedByTheTextBefore) {
  FakeSession session;
  session.Add(ControlKind::kStatic, kNoControlId, "新規ﾌｧｲﾙ");
  session.Add(kLine, 1);
  session.Add(ControlKind::kStatic, kNoControlId, "番号");
  session.Add(ControlKind::kComboBox, 2);
  RunWithUser(session, [&](QDialog& window) {
    EXPECT_EQ(ControlWidget<QWidget>(window, 1).accessibleName(), "新規ﾌｧｲﾙ");
    EXPECT_EQ(ControlWidget<QWidget>(window, 2).accessibleName(), "番号");
  });
}

}  // namespace
}  // namespace orreryui
