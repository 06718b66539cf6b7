// Whether a display server is alive and lets this process in.
#ifndef ORRERYUI_FRONT_ENDS_QT_DISPLAY_SERVERS_H_
#define ORRERYUI_FRONT_ENDS_QT_DISPLAY_SERVERS_H_

#include <memory>

namespace orreryui {

// Both look where the environment says, and give a server that hangs a few seconds.

// A connection to the X server, or null if there is none. An X server may start over when its last
// connection goes, so this one is to be held until there is another. A connection to a server that
// hangs stays open until that server answers; meanwhile the answer is null.
std::shared_ptr<void> ConnectToXServer();

bool WaylandServerAnswers();

// Whether a connection to an X server still stands. `connection` is an xcb_connection_t.
bool XConnectionHolds(void* connection);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_DISPLAY_SERVERS_H_
