// Checks that a widget has room for its text.
#ifndef ORRERYUI_TESTS_QT_FIT_CHECKS_H_
#define ORRERYUI_TESTS_QT_FIT_CHECKS_H_

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QStyle>

namespace orreryui {

// `part` is the part of the button that its style leaves for the label.
void ExpectRoomForLabel(const QAbstractButton& button, QStyle::SubElement part);

// With the line breaks that the label makes.
void ExpectRoomForText(const QLabel& label);

void ExpectRoomForTitle(const QGroupBox& box);

// All of them lie inside the page, whose size is what the bar leaves of the tab control.
void ExpectRoomForControls(const QWidget& page);

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_QT_FIT_CHECKS_H_
