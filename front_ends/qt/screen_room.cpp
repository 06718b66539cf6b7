#include "front_ends/qt/screen_room.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace orreryui {

QRect AvailableArea(const QWidget& window) {
  const QWidget* const owner = window.parentWidget();
  const QScreen* screen = owner != nullptr ? owner->screen() : nullptr;
  if (screen == nullptr) screen = QGuiApplication::screenAt(QCursor::pos());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  return screen->availableGeometry();
}

QSize RoomFor(const QWidget& window) { return AvailableArea(window).size() - kWindowFrame; }

}  // namespace orreryui
