// The QApplication that the dialogs run in: the host's, or one of our own.
#ifndef ORRERYUI_FRONT_ENDS_QT_APPLICATION_H_
#define ORRERYUI_FRONT_ENDS_QT_APPLICATION_H_

#include <QStringList>

namespace orreryui {

// Whether there is a QApplication on the calling thread.
bool HasApplication();

// Makes sure of it. A QApplication of the host is used as it is; where there is none, one is made
// and kept until the process ends. False, with the process as it was, where the host runs another
// kind of Qt application, runs one on another thread, holds another Qt, or has no display. What was
// found on the way joins `findings`, a line each for a person.
bool FindOrMakeApplication(QStringList& findings);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_APPLICATION_H_
