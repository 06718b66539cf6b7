// Checks that widgets have room for their texts.
#ifndef ORRERYUI_TESTS_QT_FIT_CHECKS_H_
#define ORRERYUI_TESTS_QT_FIT_CHECKS_H_

#include <QLabel>

namespace orreryui {

// With the line breaks that the label makes.
void ExpectRoomForText(const QLabel& label);

// The labels, buttons and group boxes of the dialog. Returns how many of them have a text.
int ExpectNothingCut(const QWidget& dialog);

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_QT_FIT_CHECKS_H_
