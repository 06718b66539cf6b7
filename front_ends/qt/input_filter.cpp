#include "front_ends/qt/input_filter.h"

#include <QFocusEvent>
#include <QInputMethodEvent>

namespace orreryui {

InputFilter::InputFilter(GestureRunner& runner) : runner_(runner) {}

void InputFilter::Watch(QWidget* widget, int index, int id, bool enter_breaks_lines) {
  widgets_[widget] = {index, id, enter_breaks_lines, false};
  widget->installEventFilter(this);
}

bool InputFilter::eventFilter(QObject* watched, QEvent* event) {
  const auto found = widgets_.find(watched);
  if (found == widgets_.end()) return false;
  switch (event->type()) {
    case QEvent::InputMethod:
      found->composing = !static_cast<QInputMethodEvent*>(event)->preeditString().isEmpty();
      return false;
    case QEvent::FocusIn:
      ReportFocus(*found, *static_cast<QFocusEvent*>(event));
      return false;
    case QEvent::FocusOut:
      found->composing = false;
      return false;
    case QEvent::KeyPress:
      return TakesKey(*found, *static_cast<QKeyEvent*>(event));
    default:
      return false;
  }
}

bool InputFilter::TakesKey(const Watched& widget, const QKeyEvent& key) const {
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (widget.composing) return true;  // it is meant for the input method
      if (widget.enter_breaks_lines) return false;
      // A key that is held down must not press the buttons of the windows that follow.
      if (!key.isAutoRepeat()) runner_.PressEnter();
      return true;
    case Qt::Key_Escape:
      if (widget.composing) return true;
      if (!key.isAutoRepeat()) runner_.PressEscape();
      return true;
    default:
      return false;
  }
}

void InputFilter::ReportFocus(const Watched& widget, const QFocusEvent& focus) {
  switch (focus.reason()) {
    case Qt::PopupFocusReason:
    case Qt::ActiveWindowFocusReason:
    case Qt::MenuBarFocusReason:
      return;
    default:
      break;
  }
  const int id = widget.id;
  if (id == kNoControlId) return;
  runner_.Run(widget.index, [id](ControlSession& session) { session.Focus(id); });
}

}  // namespace orreryui
