// The window of a host whose windows aren't Qt's.
#ifndef ORRERYUI_FRONT_ENDS_QT_FOREIGN_WINDOW_H_
#define ORRERYUI_FRONT_ENDS_QT_FOREIGN_WINDOW_H_

#include <QWindow>
#include <memory>

namespace orreryui {

// The window that the user works in, if this is an X display and the window is one of this process
// and not Qt's; else null. The window itself outlives the object. `own` is any window on the
// display.
std::unique_ptr<QWindow> ActiveForeignWindow(WId own);

// The place of a window on the screen, the frame included if it is one of Qt's.
QRect FrameOf(const QWindow& window);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_FOREIGN_WINDOW_H_
