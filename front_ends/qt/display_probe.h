// Whether Qt will find a display. QApplication ends the process where it finds none, so the
// question is asked before there is one.
#ifndef ORRERYUI_FRONT_ENDS_QT_DISPLAY_PROBE_H_
#define ORRERYUI_FRONT_ENDS_QT_DISPLAY_PROBE_H_

#include <QByteArray>
#include <optional>

namespace orreryui {

// The first of the platforms which Qt would try that works, in the form that QT_QPA_PLATFORM takes;
// nothing if none does. A display server that doesn't answer within seconds counts as none. Prints
// nothing.
std::optional<QByteArray> UsablePlatform();

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_DISPLAY_PROBE_H_
