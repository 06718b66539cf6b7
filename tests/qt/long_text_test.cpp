// A text that is too long for one document, in the real text view on a real file.
#include <gtest/gtest.h>
#include <orreryui/orreryui.h>

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryFile>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QWheelEvent>
#include <functional>

namespace orreryui {
namespace {

constexpr int kLines = 100000;

class LongTextTest : public testing::Test {
 protected:
  LongTextTest() {
    EXPECT_TRUE(file_.open());
    Write(" line of a long text\r\n");
  }

  // Fills the file with kLines lines: their numbers, and this text behind each.
  void Write(const QByteArray& text) {
    file_.resize(0);
    file_.seek(0);
    for (int line = 0; line < kLines; ++line) file_.write(QByteArray::number(line) + text);
    file_.flush();
  }

  // Runs `user` in the text view, then closes it.
  void Visit(const std::function<void()>& user) {
    QTimer::singleShot(0, [&] {
      window_ = QApplication::activeModalWidget();
      ASSERT_NE(window_, nullptr);
      edit_ = window_->findChild<QPlainTextEdit*>(QStringLiteral("1050"));
      ASSERT_NE(edit_, nullptr);
      user();
      QTest::keyClick(window_, Qt::Key_Escape);
    });
    OnTextDisplayDaialog(file_.fileName().toLocal8Bit().constData(), "", "");
    EXPECT_NE(edit_, nullptr);
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(edit_, key, modifiers);
    Settle();
  }

  // Lets the part be exchanged if the visible lines call for that.
  void Settle() {
    window_->grab();
    for (int round = 0; round < 3; ++round) QApplication::processEvents();
  }

  QScrollBar* Bar() const {
    for (QScrollBar* bar : edit_->findChildren<QScrollBar*>()) {
      if (bar->isVisible()) return bar;
    }
    return nullptr;
  }

  static int NumberOf(const QTextBlock& block) {
    return block.text().section(QLatin1Char(' '), 0, 0).toInt();
  }
  int TopLine() const { return NumberOf(edit_->cursorForPosition(QPoint(4, 4)).block()); }
  int CursorLine() const { return NumberOf(edit_->textCursor().block()); }

  QWidget* window_ = nullptr;
  QPlainTextEdit* edit_ = nullptr;

 private:
  QTemporaryFile file_;
};

TEST_F(LongTextTest, TheScrollBarGoesThroughTheWholeTextAndTheDocumentHoldsAPart) {
  Visit([&] {
    ASSERT_NE(Bar(), nullptr);
    EXPECT_EQ(TopLine(), 0);
    for (const int line : {50000, 50900, 99000, 300, 0}) {
      Bar()->setValue(line);
      Settle();
      EXPECT_EQ(TopLine(), line);
      EXPECT_EQ(Bar()->value(), line);
      EXPECT_LT(edit_->blockCount(), 5000);
    }
    Bar()->setValue(Bar()->maximum());
    Settle();
    const QPoint last(4, edit_->viewport()->height() - 4);
    EXPECT_EQ(edit_->cursorForPosition(last).block().text(), QString());
  });
}

TEST_F(LongTextTest, ACarriageReturnInALineLeavesEveryLineInReach) {
  Write(" line\r of two blocks\r\n");
  Visit([&] {
    edit_->setFocus();
    for (const int line : {70000, 300}) {
      Bar()->setValue(line);
      Settle();
      EXPECT_TRUE(edit_->toPlainText().contains(QStringLiteral("\n%1 line").arg(line)));
    }
    Press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(edit_->toPlainText().contains(QStringLiteral("\n%1 line").arg(kLines - 1)));
    EXPECT_TRUE(edit_->textCursor().atEnd());
    Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(TopLine(), 0);
  });
}

TEST_F(LongTextTest, FindingGoesThroughTheWholeTextBothWaysAndLeavesTheKeysOfTheDialogAlone) {
  Write(" line\r of two BLOCKS\r\n");
  Visit([&] {
    Settle();
    Press(Qt::Key_F, Qt::ControlModifier);
    auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(line, nullptr);
    const auto place_after = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
      QTest::keyClick(line, key, modifiers);
      Settle();
      EXPECT_EQ(edit_->textCursor().selectedText().toLower(), line->text().toLower());
      EXPECT_TRUE(edit_->viewport()->rect().intersects(edit_->cursorRect()));
      return NumberOf(edit_->textCursor().block().previous());
    };
    QTest::keyClicks(line, "two block");
    EXPECT_EQ(place_after(Qt::Key_S), 0);
    EXPECT_EQ(place_after(Qt::Key_Return), 1);
    EXPECT_EQ(place_after(Qt::Key_Return, Qt::ShiftModifier), 0);
    EXPECT_EQ(place_after(Qt::Key_Return, Qt::ShiftModifier), kLines - 1);
    EXPECT_EQ(place_after(Qt::Key_F3), 0);
    line->selectAll();
    QTest::keyClicks(line, "\b70000 Lin");
    place_after(Qt::Key_E);
    EXPECT_EQ(CursorLine(), 70000);
    const QTextCursor found = edit_->textCursor();
    QTest::keyClicks(line, "nowhere");
    EXPECT_EQ(edit_->textCursor(), found);
    EXPECT_EQ(line->accessibleDescription(), QStringLiteral("見つかりません"));
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_TRUE(edit_->hasFocus());
    EXPECT_FALSE(line->isVisible());
    EXPECT_TRUE(window_->isVisible());
  });
}

TEST_F(LongTextTest, LettersZoomByKeysAndWheelAndTheTextTakesTheRoomOfItsWindow) {
  Visit([&] {
    const auto size = [this] { return edit_->fontMetrics().height(); };
    const int normal = size();
    Press(Qt::Key_Plus, Qt::ControlModifier);
    Press(Qt::Key_Plus, Qt::ControlModifier);
    const int large = size();
    EXPECT_GT(large, normal);
    QWheelEvent down(QPointF(9, 9), edit_->mapToGlobal(QPointF(9, 9)), {}, {0, -120}, {},
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(edit_->viewport(), &down);
    EXPECT_LT(size(), large);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(size(), normal);

    const QRect text = edit_->geometry();
    const auto* const button = window_->findChild<QPushButton*>(QStringLiteral("1"));
    const QRect at = button->geometry();
    for (const QSize gained : {QSize(60, 90), QSize(-60, -90)}) {
      window_->resize(window_->size() + gained);
      const QPoint moved(gained.width(), gained.height());
      const QPoint off = edit_->geometry().bottomRight() - text.bottomRight() - moved;
      EXPECT_LE(off.manhattanLength(), 8);
      EXPECT_EQ(edit_->geometry().topLeft(), text.topLeft());
      EXPECT_LE((button->pos() - at.topLeft() - moved).manhattanLength(), 8);
      EXPECT_NEAR(button->width(), at.width(), 1);
      window_->resize(window_->size() - gained);
    }
    window_->resize(1, 1);
    EXPECT_TRUE(window_->rect().contains(button->geometry()));
    EXPECT_GT(edit_->height(), 2 * normal);
  });
}

TEST_F(LongTextTest, PagesFollowOneAnotherAcrossParts) {
  Visit([&] {
    edit_->setFocus();
    Press(Qt::Key_PageDown);
    const int page = CursorLine();
    ASSERT_GT(page, 5);
    while (CursorLine() < 10000) {
      const int before = CursorLine();
      Press(Qt::Key_PageDown);
      ASSERT_NEAR(CursorLine() - before, page, 1);
    }
    while (CursorLine() > 5000) {
      const int before = CursorLine();
      Press(Qt::Key_PageUp);
      ASSERT_NEAR(before - CursorLine(), page, 1);
    }
    EXPECT_NEAR(Bar()->value(), CursorLine(), 2 * page);
  });
}

TEST_F(LongTextTest, ASelectionOutlivesTheExchangeOfTheLinesAroundIt) {
  Visit([&] {
    Bar()->setValue(1700);
    Settle();
    edit_->setTextCursor(edit_->cursorForPosition(QPoint(4, 4)));
    Press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    const QString selected = edit_->textCursor().selectedText();
    EXPECT_EQ(selected.trimmed(), QStringLiteral("1700"));
    const QTextBlock first = edit_->document()->firstBlock();
    const int first_line = NumberOf(first);
    edit_->verticalScrollBar()->setValue(edit_->verticalScrollBar()->value() + 300);
    Settle();
    EXPECT_NE(NumberOf(edit_->document()->firstBlock()), first_line);
    EXPECT_EQ(TopLine(), 2000);
    EXPECT_EQ(edit_->textCursor().selectedText(), selected);
    EXPECT_EQ(CursorLine(), 1700);
  });
}

TEST_F(LongTextTest, WhatIsTypedStaysWhereItWasTyped) {
  Visit([&] {
    edit_->setFocus();
    Press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(edit_->textCursor().block().previous().previous().text(),
              QStringLiteral("99999 line of a long text"));
    Press(Qt::Key_X);
    Press(Qt::Key_Return);
    Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(TopLine(), 0);
    EXPECT_EQ(edit_->textCursor().position(), 0);
    Press(Qt::Key_Y);
    Press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(edit_->textCursor().block().previous().text(), QStringLiteral("x"));
    Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(edit_->textCursor().block().text(), QStringLiteral("y0 line of a long text"));
  });
}

}  // namespace
}  // namespace orreryui
