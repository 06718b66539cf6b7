#include "tests/qt/fit_checks.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QGroupBox>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>

namespace orreryui {
namespace {

// The part of a button that its style leaves for the label.
QStyle::SubElement LabelPart(const QAbstractButton& button) {
  if (button.inherits("QCheckBox")) return QStyle::SE_CheckBoxContents;
  if (button.inherits("QRadioButton")) return QStyle::SE_RadioButtonContents;
  return QStyle::SE_PushButtonContents;
}

// What a text needs, without the room that the font leaves above and below its letters.
int LettersHeight(const QWidget& widget, const QSize& text) {
  const int line = widget.fontMetrics().size(0, QStringLiteral("漢A")).height();
  return text.height() - line + widget.fontInfo().pixelSize();
}

void ExpectRoomForLabel(const QAbstractButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  const QRect room = button.style()->subElementRect(LabelPart(button), &option, &button);
  const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
  EXPECT_LE(text.width(), room.width()) << button.text().toStdString();
  EXPECT_LE(LettersHeight(button, text), button.height()) << button.text().toStdString();
}

void ExpectRoomForTitle(const QGroupBox& box) {
  QStyleOptionGroupBox option;
  option.initFrom(&box);
  option.text = box.title();
  option.lineWidth = 1;
  option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
  const QRect place =
      box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box);
  const QSize text = box.fontMetrics().size(Qt::TextShowMnemonic, box.title());
  EXPECT_TRUE(box.rect().contains(place)) << box.title().toStdString();
  EXPECT_LE(text.width(), place.width()) << box.title().toStdString();
}

// Returns how many of the widgets have a text; `check` is called with each of these.
template <class Widget>
int ForEachText(const QWidget& dialog, QString (Widget::*text)() const,
                void (*check)(const Widget&)) {
  int count = 0;
  for (const Widget* widget : dialog.findChildren<Widget*>()) {
    if ((widget->*text)().isEmpty()) continue;
    check(*widget);
    ++count;
  }
  return count;
}

}  // namespace

void ExpectRoomForText(const QLabel& label) {
  EXPECT_FALSE(label.wordWrap());
  const QSize text = label.fontMetrics().size(0, label.text());
  EXPECT_LE(text.width(), label.width()) << label.text().toStdString();
  EXPECT_LE(LettersHeight(label, text), label.height()) << label.text().toStdString();
  EXPECT_EQ(label.toolTip(), "") << "the text was shortened";
}

int ExpectNothingCut(const QWidget& dialog) {
  return ForEachText(dialog, &QAbstractButton::text, ExpectRoomForLabel) +
         ForEachText(dialog, &QLabel::text, ExpectRoomForText) +
         ForEachText(dialog, &QGroupBox::title, ExpectRoomForTitle);
}

}  // namespace orreryui
