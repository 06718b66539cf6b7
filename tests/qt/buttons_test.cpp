#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

using testing::ElementsAre;

class Buttons : public OnScreen {};

TEST_F(Buttons, LabelsAreOnlyTextAndAGroupBoxLetsClicksThrough) {
  session.Add(ControlKind::kPushButton, 1, "A&B");
  session.Add(ControlKind::kCheckBox, 2, "C&D");
  session.Add(ControlKind::kStatic, 3, "E&F <b>");
  session.Add(ControlKind::kGroupBox, 4, "枠&").place = {0, 0, 190, 40};
  Run([&](QDialog& window) {
    const auto& button = ControlWidget<QPushButton>(window, 1);
    EXPECT_EQ(button.text(), "A&&B");
    EXPECT_EQ(button.accessibleName(), "A&B");
    EXPECT_EQ(window.childAt(button.mapTo(&window, button.rect().center())), &button);
    EXPECT_EQ(ControlWidget<QCheckBox>(window, 2).text(), "C&&D");
    EXPECT_EQ(ControlWidget<QLabel>(window, 3).text(), "E&F <b>");
    EXPECT_EQ(ControlWidget<QLabel>(window, 3).textFormat(), Qt::PlainText);
    EXPECT_EQ(ControlWidget<QGroupBox>(window, 4).title(), "枠&&");
    QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier);
    EXPECT_THAT(session.Take(), ElementsAre());
  });
}

TEST_F(Buttons, PressMovesTheFocusAndReleaseClicksWhatIsInReach) {
  for (int id : {1, 2, 3}) session.Add(ControlKind::kPushButton, id, "押");
  session.At(3).enabled = false;
  session.At(3).visible = false;
  Run([&](QDialog& window) {
    auto& second = ControlWidget<QPushButton>(window, 2);
    auto& third = ControlWidget<QPushButton>(window, 3);
    QTest::mousePress(&second, Qt::LeftButton);
    EXPECT_THAT(session.Take(), ElementsAre("focus 2"));
    QTest::mouseRelease(&second, Qt::LeftButton);
    EXPECT_THAT(session.Take(), ElementsAre("click 2"));
    QTest::keyClick(&second, Qt::Key_Space);
    EXPECT_THAT(session.Take(), ElementsAre("click 2"));
    EXPECT_FALSE(third.isVisible());
    session.Change(3, [](ControlView& view) { view.visible = true; });
    EXPECT_TRUE(third.isVisible());
    EXPECT_FALSE(third.isEnabled());
  });
}

TEST_F(Buttons, CheckBoxesShowTheModelWhateverWasClicked) {
  session.Add(ControlKind::kCheckBox, 1, "一");
  session.Add(ControlKind::kPushLikeCheckBox, 2, "二");
  Run([&](QDialog& window) {
    auto& check = ControlWidget<QCheckBox>(window, 1);
    auto& push_like = ControlWidget<QPushButton>(window, 2);
    QTest::mouseClick(&check, Qt::LeftButton);
    EXPECT_FALSE(check.isChecked());
    session.handler = [&](const std::string& gesture) {
      if (gesture == "click 2") session.Change(2, [](ControlView& view) { view.checked = true; });
    };
    QTest::mouseClick(&push_like, Qt::LeftButton);
    EXPECT_TRUE(push_like.isChecked());
    EXPECT_THAT(session.Take(), ElementsAre("click 1", "focus 2", "click 2"));
  });
}

double Luminance(QWidget& button) {
  const QColor seen = button.grab().toImage().pixelColor(10, button.height() / 2);
  const auto linear = [](double part) { return std::pow((part + 0.055) / 1.055, 2.4); };
  return 0.2126 * linear(seen.redF()) + 0.7152 * linear(seen.greenF()) +
         0.0722 * linear(seen.blueF());
}

TEST_F(Buttons, WhatStaysDownStandsOutFromItsNeighboursInEveryPalette) {
  for (const int id : {1, 2}) session.Add(ControlKind::kPushLikeCheckBox, id, "県");
  session.At(2).checked = true;
  QPalette dark(QColor(0x35, 0x35, 0x35));
  dark.setColor(QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
  QPalette poor;
  poor.setColor(QPalette::Highlight, poor.color(QPalette::Button));
  Run([&](QDialog& window) {
    for (const QPalette& palette : {QPalette(), dark, poor}) {
      window.setPalette(palette);
      const double off = Luminance(ControlWidget<QPushButton>(window, 1));
      const double on = Luminance(ControlWidget<QPushButton>(window, 2));
      EXPECT_GE((std::max(off, on) + 0.05) / (std::min(off, on) + 0.05), 3);
    }
  });
}

class RadioButtons : public OnScreen {
 protected:
  RadioButtons() {
    session.Add(ControlKind::kPushButton, 9, "前");
    for (int id = 1; id <= 4; ++id) session.Add(ControlKind::kRadioButton, id, "項");
    session.At(1).starts_group = true;
    session.At(3).starts_group = true;
    session.At(1).checked = true;
    session.At(4).checked = true;
  }
};

TEST_F(RadioButtons, GoBackWhereTheModelDoesNotFollow) {
  Run([&](QDialog& window) {
    QTest::mouseClick(&ControlWidget<QRadioButton>(window, 2), Qt::LeftButton);
    EXPECT_THAT(session.Take(), ElementsAre("focus 2", "click 2"));
    for (int id = 1; id <= 4; ++id) {
      EXPECT_EQ(ControlWidget<QRadioButton>(window, id).isChecked(), id == 1 || id == 4) << id;
    }
  });
}

TEST_F(RadioButtons, ArrowKeysTurnOnWhatTheyReachFromWhereverTheFocusIs) {
  session.At(2).starts_group = false;
  session.At(3).starts_group = false;
  session.At(3).enabled = false;
  session.layout.focus = 2;  // which is off
  const std::pair<Qt::Key, std::string> cases[] = {
      {Qt::Key_Right, "4"}, {Qt::Key_Down, "1"}, {Qt::Key_Left, "4"}, {Qt::Key_Up, "2"}};
  Run([&](QDialog& window) {
    for (const auto& [key, id] : cases) {
      QTest::keyClick(window.focusWidget(), key);
      EXPECT_THAT(session.Take(), ElementsAre("focus " + id, "click " + id));
      EXPECT_EQ(window.focusWidget()->objectName().toStdString(), id);
    }
  });
}

TEST_F(RadioButtons, TheTabKeyGoesToTheButtonThatIsOn) {
  Run([&](QDialog& window) {
    const auto tab_goes_to = [&](const char* id) {
      QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
      EXPECT_EQ(window.focusWidget()->objectName(), id);
    };
    session.Change(1, [](ControlView& view) { view.checked = false; });
    session.Change(2, [](ControlView& view) { view.checked = true; });
    tab_goes_to("2");
    tab_goes_to("4");
    tab_goes_to("9");
    session.Change(2, [](ControlView& view) { view.checked = false; });
    tab_goes_to("1");
    session.Change(3, [](ControlView& view) { view.checked = true; });
    session.Change(4, [](ControlView& view) { view.checked = false; });
    tab_goes_to("3");
  });
}

TEST_F(Buttons, SwatchShowsColourAndFrame) {
  session.Add(ControlKind::kStatic, kNoControlId, "海岸線");
  session.Add(ControlKind::kSwatch, 1).swatch = {0x00112233u, std::nullopt};
  RunAt<QPushButton>(1, [&](QPushButton& swatch) {
    EXPECT_EQ(swatch.grab().toImage().pixelColor(swatch.rect().center()), QColor(0x33, 0x22, 0x11));
    QAccessibleInterface& said = *QAccessible::queryAccessibleInterface(&swatch);
    EXPECT_EQ(said.text(QAccessible::Name), "海岸線 赤51 緑34 青17");
    said.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(session.Take(), ElementsAre("click 1"));
    session.Change(1, [](ControlView& view) { view.swatch = {0x000000FFu, 0x00FF0000u}; });
    const QImage picture = swatch.grab().toImage();
    EXPECT_EQ(picture.pixelColor(swatch.rect().center()), QColor(255, 0, 0));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(0, 0, 255));
    QTest::mouseClick(&swatch, Qt::LeftButton);
    EXPECT_THAT(session.Take(), ElementsAre("click 1"));
    session.Change(1, [](ControlView& view) { view.swatch.note = "補間"; });
    QHelpEvent asked(QEvent::ToolTip, {}, swatch.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&swatch, &asked);
    EXPECT_EQ(QToolTip::text(), "赤255 緑0 青0\n補間");
    EXPECT_EQ(said.text(QAccessible::Name), "海岸線 赤255 緑0 青0 補間");
  });
}

TEST_F(Buttons, ASwatchThatOnlyShowsTakesNeitherTheFocusNorClicks) {
  session.Add(ControlKind::kPushButton, 1, "OK");
  session.Add(ControlKind::kSwatch, 2).shows_only = true;
  session.Add(ControlKind::kPushButton, 3, "ｷｬﾝｾﾙ");
  RunAt<QPushButton>(2, [&](QPushButton& swatch) {
    QTest::mouseClick(&swatch, Qt::LeftButton);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_THAT(session.Take(), ElementsAre("focus 3"));
  });
}

}  // namespace
}  // namespace orreryui
