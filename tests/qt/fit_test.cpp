// No text is cut, whatever its length, its script and the palette; run at several scales.

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTest>

#include "tests/qt/fit_checks.h"
#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

class Fit : public OnScreen {};

TEST_F(Fit, NoTextIsCutInALargeFont) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPointSizeF(before.pointSizeF() * 1.7);
  QApplication::setFont(large);
  // The rectangles have the height and width that such texts commonly get.
  int id = 0;
  const auto add = [&](ControlKind kind, const char* text, int width, int height) {
    session.Add(kind, ++id, text, height).place.width = width;
  };
  add(ControlKind::kStatic, "一行の固定の文字列でいっぱいの幅になる", 140, 8);
  add(ControlKind::kStatic, "二行になる長い文字列は幅が足りないところで折り返される", 120, 18);
  add(ControlKind::kPushButton, "上記ﾌｧｲﾙ   を削除", 50, 22);
  add(ControlKind::kPushButton, "ｷｬﾝｾﾙ", 32, 12);
  add(ControlKind::kCheckBox, "HD(共通領域)と指定のﾃﾞｰﾀﾌｧｲﾙを利用", 150, 10);
  add(ControlKind::kRadioButton, "表示･保存", 50, 10);
  add(ControlKind::kEdit, "鎌倉(計12地点)", 180, 12);
  add(ControlKind::kStatic, "\\home\\kamakura\\documents\\albums\\hachimangu.txt", 120, 18);
  Run([](QDialog& window) {
    EXPECT_EQ(ExpectNothingCut(window), 7);
    EXPECT_EQ(ControlWidget<QPushButton>(window, 3).text().count('\n'), 1);
    const auto& edit = ControlWidget<QLineEdit>(window, 7);
    EXPECT_GE(edit.height(), edit.minimumSizeHint().height());
  });
  QApplication::setFont(before);
}

TEST_F(Fit, PartsKeepTheirProportions) {
  session.Add(ControlKind::kPushButton, 1, "OK").place = {10, 10, 50, 14};
  session.Add(ControlKind::kPushButton, 2, "OK").place = {100, 40, 100, 28};
  session.layout.height = 80;
  Run([](QDialog& window) {
    const QRect first = ControlWidget<QPushButton>(window, 1).geometry();
    const QRect second = ControlWidget<QPushButton>(window, 2).geometry();
    EXPECT_NEAR(second.x(), 10 * first.x(), 10);
    EXPECT_NEAR(second.width(), 2 * first.width(), 2);
    EXPECT_NEAR(second.height(), 2 * first.height(), 2);
    EXPECT_NEAR(window.width(), 4 * first.width(), 4);
  });
}

TEST_F(Fit, TextThatGrowsLaterFitsAsWell) {
  session.Add(ControlKind::kStatic, 1, "短", 8).place.width = 60;
  Run([&](QDialog& window) {
    const int height = window.height();
    session.Change(1, [](ControlView& view) { view.text = "字\r\n"; });
    EXPECT_EQ(window.height(), height);
    session.Change(1, [](ControlView& view) { view.text = "すこし長い文字列"; });
    const auto& label = ControlWidget<QLabel>(window, 1);
    ExpectRoomForText(label);
    session.Change(1, [](ControlView& view) { view.text = std::string(400, 'x'); });
    EXPECT_EQ(label.toolTip(), QString(400, 'x'));
    session.Change(1, [](ControlView& view) { view.text = "短"; });
    EXPECT_EQ(label.text(), "短");
    EXPECT_EQ(label.toolTip(), "");
  });
}

TEST_F(Fit, TextThatWouldTakeItsDialogBeyondTheScreenLosesItsMiddle) {
  const int screen = QGuiApplication::primaryScreen()->availableSize().width();
  session.layout.width = screen * 5 / 12;
  const std::string text = QString("長い名前").repeated(200).toStdString() + "終";
  session.Add(ControlKind::kStatic, 1, text, 18).place.width = screen / 3;
  Run([&](QDialog& window) {
    EXPECT_LE(window.width(), screen);
    EXPECT_EQ(window.findChild<QScrollArea*>(), nullptr);
    const auto& label = ControlWidget<QLabel>(window, 1);
    EXPECT_TRUE(label.text().contains(QChar(0x2026))) << label.text().toStdString();
    EXPECT_GE(label.text().count('\n'), 1);
    EXPECT_LE(label.sizeHint().width(), label.width());
    EXPECT_LE(label.sizeHint().height(), label.height());
    EXPECT_TRUE(label.text().endsWith("終")) << "the last name of a path stays";
    EXPECT_EQ(label.toolTip().toStdString(), text);
    EXPECT_EQ(label.accessibleName().toStdString(), text);
    const QString wrapped = QString("長").repeated(screen / 10);
    session.Change(1, [&](ControlView& view) { view.text = wrapped.toStdString(); });
    EXPECT_EQ(label.text().count('\n'), 1);
    EXPECT_EQ(label.accessibleName(), wrapped);
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {1, 1}, label.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&ControlWidget<QLabel>(window, 1), &asked);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), wrapped);
  });
}

TEST_F(Fit, ADialogLargerThanTheScreenScrolls) {
  session.Add(ControlKind::kPushButton, 1, "OK");
  session.layout.width = 4000;
  session.layout.height = 4000;
  Run([&](QDialog& window) {
    const QSize screen = window.screen()->availableSize();
    EXPECT_LE(window.width(), screen.width());
    EXPECT_LE(window.height(), screen.height());
    QTest::mouseClick(&ControlWidget<QPushButton>(window, 1), Qt::LeftButton);
    EXPECT_THAT(session.Take(), testing::Contains("click 1"));
  });
}

TEST_F(Fit, DarkPaletteReachesTheControls) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(40, 40, 40)));
  session.Add(ControlKind::kStatic, 1, "字");
  Run([](QDialog& window) {
    const QImage picture = window.grab().toImage();
    EXPECT_LT(picture.pixelColor(picture.width() - 1, 0).lightness(), 80);
    EXPECT_GT(ControlWidget<QLabel>(window, 1).palette().windowText().color().lightness(), 160);
  });
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace orreryui
