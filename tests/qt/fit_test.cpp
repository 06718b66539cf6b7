// No text is cut, whatever its length, its script and the palette; run at several scales.

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTest>

#include "tests/qt/fit_checks.h"
#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

// The rectangles have the height and width that such texts commonly get.
void AddTightControls(FakeSession& session) {
  session.Add(ControlKind::kStatic, 1, "一行の固定の文字列でいっぱいの幅になる", 8);
  session.At(1).place.width = 140;
  session.Add(ControlKind::kStatic, 2, "二行になる長い文字列は幅が足りないところで折り返される",
              18);
  session.At(2).place.width = 120;
  session.Add(ControlKind::kPushButton, 3, "上記ﾌｧｲﾙ   を削除", 22).place.width = 50;
  session.Add(ControlKind::kPushButton, 4, "ｷｬﾝｾﾙ", 12).place.width = 32;
  session.Add(ControlKind::kCheckBox, 5, "HD(共通領域)と指定のﾃﾞｰﾀﾌｧｲﾙを利用", 10);
  session.At(5).place.width = 150;
  session.Add(ControlKind::kRadioButton, 6, "表示･保存", 10).place.width = 50;
  session.Add(ControlKind::kEdit, 7, "鎌倉(計12地点)", 12);
  session.Add(ControlKind::kStatic, 8, "\\home\\kamakura\\documents\\albums\\hachimangu.txt", 18);
  session.At(8).place.width = 120;
}

// The label shows no more than it has room for, in so many lines.
void ExpectShortened(const QLabel& label, int lines) {
  EXPECT_TRUE(label.text().contains(QChar(0x2026))) << label.text().toStdString();
  EXPECT_GE(label.text().count('\n') + 1, lines);
  EXPECT_LE(label.sizeHint().width(), label.width());
  EXPECT_LE(label.sizeHint().height(), label.height());
}

void ExpectNothingCut(QDialog& window) {
  for (int id : {1, 2, 8}) ExpectRoomForText(ControlWidget<QLabel>(window, id));
  EXPECT_EQ(ControlWidget<QPushButton>(window, 3).text().count('\n'), 1);
  for (int id : {3, 4}) {
    ExpectRoomForLabel(ControlWidget<QPushButton>(window, id), QStyle::SE_PushButtonContents);
  }
  ExpectRoomForLabel(ControlWidget<QCheckBox>(window, 5), QStyle::SE_CheckBoxContents);
  ExpectRoomForLabel(ControlWidget<QRadioButton>(window, 6), QStyle::SE_RadioButtonContents);
  const auto& edit = ControlWidget<QLineEdit>(window, 7);
  EXPECT_GE(edit.height(), edit.minimumSizeHint().height());
}

TEST(Fit, NoTextIsCutInALargeFont) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPointSizeF(before.pointSizeF() * 1.7);
  QApplication::setFont(large);
  FakeSession session;
  AddTightControls(session);
  RunWithUser(session, [](QDialog& window) { ExpectNothingCut(window); });
  QApplication::setFont(before);
}

TEST(Fit, PartsKeepTheirProportions) {
  FakeSession session;
  session.Add(ControlKind::kPushButton, 1, "OK").place = {10, 10, 50, 14};
  session.Add(ControlKind::kPushButton, 2, "OK").place = {100, 40, 100, 28};
  session.layout.height = 80;
  RunWithUser(session, [](QDialog& window) {
    const QRect first = ControlWidget<QPushButton>(window, 1).geometry();
    const QRect second = ControlWidget<QPushButton>(window, 2).geometry();
    EXPECT_NEAR(second.x(), 10 * first.x(), 10);
    EXPECT_NEAR(second.width(), 2 * first.width(), 2);
    EXPECT_NEAR(second.height(), 2 * first.height(), 2);
    EXPECT_NEAR(window.width(), 4 * first.width(), 4);
  });
}

TEST(Fit, TextThatGrowsLaterFitsAsWell) {
  FakeSession session;
  session.Add(ControlKind::kStatic, 1, "短", 8).place.width = 60;
  RunWithUser(session, [&](QDialog& window) {
    const int height = window.height();
    session.Change(1, [](ControlView& view) { view.text = "字\r\n"; });
    EXPECT_EQ(window.height(), height);
    session.Change(1, [](ControlView& view) { view.text = "すこし長い文字列"; });
    const auto& label = ControlWidget<QLabel>(window, 1);
    ExpectRoomForText(label);
    session.Change(1, [](ControlView& view) { view.text = std::string(400, 'x'); });
    EXPECT_EQ(label.toolTip(), QString(400, 'x'));
    EXPECT_LE(window.width(), window.screen()->availableGeometry().width());
    ExpectShortened(label, 1);
    session.Change(1, [](ControlView& view) { view.text = "短"; });
    EXPECT_EQ(label.text(), "短");
    EXPECT_EQ(label.toolTip(), "");
  });
}

TEST(Fit, TextThatOverflowsLosesItsMiddle) {
  FakeSession session;
  std::string text;
  for (int i = 0; i < 40; ++i) text += "長い名前";
  text += "終";
  session.Add(ControlKind::kStatic, 1, text, 18).place.width = 74;
  RunWithUser(session, [&](QDialog& window) {
    const auto& label = ControlWidget<QLabel>(window, 1);
    ExpectShortened(label, 2);
    EXPECT_TRUE(label.text().endsWith("終")) << "the last name of a path stays";
    EXPECT_EQ(label.toolTip().toStdString(), text);
    EXPECT_EQ(label.accessibleName().toStdString(), text);
  });
}

TEST(Fit, ADialogThatFitsIntoTheScreenDoesNotGrowBeyondIt) {
  FakeSession session;
  const int screen = QGuiApplication::primaryScreen()->availableSize().width();
  session.layout.width = screen * 5 / 12;
  session.Add(ControlKind::kStatic, 1, std::string(1000, 'x'), 8).place.width = screen / 3;
  RunWithUser(session, [&](QDialog& window) {
    EXPECT_LE(window.width(), screen);
    EXPECT_EQ(window.findChild<QScrollArea*>(), nullptr);
    ExpectShortened(ControlWidget<QLabel>(window, 1), 1);
  });
}

TEST(Fit, ADialogLargerThanTheScreenScrolls) {
  FakeSession session;
  session.Add(ControlKind::kPushButton, 1, "OK");
  session.layout.width = 4000;
  session.layout.height = 4000;
  RunWithUser(session, [&](QDialog& window) {
    const QSize screen = window.screen()->availableSize();
    EXPECT_LE(window.width(), screen.width());
    EXPECT_LE(window.height(), screen.height());
    QTest::mouseClick(&ControlWidget<QPushButton>(window, 1), Qt::LeftButton);
    EXPECT_THAT(session.Take(), testing::Contains("click 1"));
  });
}

TEST(Fit, DarkPaletteReachesTheControls) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(40, 40, 40)));
  FakeSession session;
  session.Add(ControlKind::kStatic, 1, "字");
  RunWithUser(session, [](QDialog& window) {
    const QImage picture = window.grab().toImage();
    EXPECT_LT(picture.pixelColor(picture.width() - 1, 0).lightness(), 80);
    EXPECT_GT(ControlWidget<QLabel>(window, 1).palette().windowText().color().lightness(), 160);
    EXPECT_TRUE(window.styleSheet().isEmpty());
  });
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace orreryui
