// Whether Qt will find a display. QApplication ends the process where it finds none, so the
// question is asked before there is one.
#ifndef ORRERYUI_FRONT_ENDS_QT_DISPLAY_PROBE_H_
#define ORRERYUI_FRONT_ENDS_QT_DISPLAY_PROBE_H_

#include <QByteArray>
#include <QStringList>
#include <memory>
#include <optional>

namespace orreryui {

struct Platform {
  QByteArray name;                   // in the form that QT_QPA_PLATFORM takes
  std::shared_ptr<void> connection;  // to be held until Qt has one of its own; may be null
};

// The first of the platforms which Qt would try that works; nothing if none does. A display server
// that doesn't answer within seconds counts as none. Prints nothing; what came of each platform
// joins `findings`.
std::optional<Platform> UsablePlatform(QStringList& findings);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_DISPLAY_PROBE_H_
