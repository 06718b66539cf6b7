// The one kind of message box there is: a warning with OK and Cancel.
#ifndef ORRERYUI_FRONT_ENDS_QT_MESSAGE_BOX_H_
#define ORRERYUI_FRONT_ENDS_QT_MESSAGE_BOX_H_

#include <QWidget>
#include <string>

#include "platform/front_end.h"

namespace orreryui {

// Esc, the close box and a program that quits answer Cancel. `owner` may be null.
MessageBoxAnswer AskWarning(QWidget* owner, const std::string& text);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_MESSAGE_BOX_H_
