#include "tests/qt/fit_checks.h"

#include <gtest/gtest.h>

#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>

namespace orreryui {
namespace {

QSize LabelRoom(const QAbstractButton& button, QStyle::SubElement part) {
  QStyleOptionButton option;
  option.initFrom(&button);
  return button.style()->subElementRect(part, &option, &button).size();
}

}  // namespace

void ExpectRoomForLabel(const QAbstractButton& button, QStyle::SubElement part) {
  const QSize room = LabelRoom(button, part);
  const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
  EXPECT_LE(text.width(), room.width()) << button.text().toStdString();
  EXPECT_LE(text.height(), button.height()) << button.text().toStdString();
}

void ExpectRoomForText(const QLabel& label) {
  EXPECT_FALSE(label.wordWrap());
  const QSize text = label.fontMetrics().size(0, label.text());
  EXPECT_LE(text.width(), label.width()) << label.text().toStdString();
  EXPECT_LE(text.height(), label.height()) << label.text().toStdString();
  EXPECT_EQ(label.toolTip(), "") << "the text was shortened";
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

void ExpectRoomForControls(const QWidget& page) {
  for (const QWidget* control :
       page.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    EXPECT_TRUE(page.rect().contains(control->geometry()))
        << control->objectName().toStdString() << " on " << page.objectName().toStdString();
  }
}

}  // namespace orreryui
