#include "front_ends/qt/input_block.h"

#include <QApplication>
#include <QEvent>

namespace orreryui {

InputBlock::InputBlock() {
  qApp->installEventFilter(this);
  QApplication::setOverrideCursor(Qt::BusyCursor);
}

InputBlock::~InputBlock() { QApplication::restoreOverrideCursor(); }

bool InputBlock::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Quit:
      quits_ = true;
      return false;
    case QEvent::Close:
      if (quits_) return false;
      event->ignore();
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

}  // namespace orreryui
