// The screen that a window is about to come to.
#ifndef ORRERYUI_FRONT_ENDS_QT_SCREEN_ROOM_H_
#define ORRERYUI_FRONT_ENDS_QT_SCREEN_ROOM_H_

#include <QRect>
#include <QWidget>

namespace orreryui {

// The frame that a desktop draws around a window, in pixels; not known before it is shown.
inline constexpr QSize kWindowFrame(16, 48);

// That of the window's owner, else the one with the mouse pointer.
QRect AvailableArea(const QWidget& window);

// For a window inside its frame, in that area.
QSize RoomFor(const QWidget& window);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_SCREEN_ROOM_H_
