#include "front_ends/qt/input_block.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

namespace orreryui {
namespace {

// Lies over all that its window shows. Focus, cursors and selections stay as they are, which they
// wouldn't in a window that is disabled.
class Veil : public QWidget {
 public:
  explicit Veil(QWidget* window) : QWidget(window) {
    resize(window->screen()->virtualSize());  // the window may grow
    show();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QColor grey = palette().color(QPalette::Window);
    grey.setAlphaF(0.6F);
    QPainter(this).fillRect(event->rect(), grey);
  }
};

}  // namespace

InputBlock::InputBlock(QWidget* front) {
  qApp->installEventFilter(this);
  QApplication::setOverrideCursor(Qt::BusyCursor);
  for (QWidget* window = front; window != nullptr; window = window->parentWidget()) {
    veils_ << new Veil(window);
  }
}

InputBlock::~InputBlock() {
  for (const QPointer<QWidget>& veil : veils_) delete veil.data();
  QApplication::restoreOverrideCursor();
}

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
