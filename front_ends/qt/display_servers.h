// Whether a display server is alive and lets this process in.
#ifndef ORRERYUI_FRONT_ENDS_QT_DISPLAY_SERVERS_H_
#define ORRERYUI_FRONT_ENDS_QT_DISPLAY_SERVERS_H_

namespace orreryui {

// Both look where the environment says, and give a server that hangs a few seconds. They leave no
// connection open, except that a connection to an X server that hangs stays until that server
// answers; meanwhile the answer is false.
bool XServerAnswers();
bool WaylandServerAnswers();

// Whether a connection to an X server still stands. `connection` is an xcb_connection_t.
bool XConnectionHolds(void* connection);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_DISPLAY_SERVERS_H_
