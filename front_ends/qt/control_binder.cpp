#include "front_ends/qt/control_binder.h"

namespace orreryui {

ControlBinder::ControlBinder(const BinderPlace& place) : place_(place) {}

void ControlBinder::Show(const ControlView& view) {
  ShowState(view);
  widget()->setEnabled(view.enabled);
  widget()->setVisible(view.visible);
}

QSize ControlBinder::Needed(const ControlView&, QSize offered) const { return offered; }

void ControlBinder::Arrange(const ControlView& view, const DialogScale& scale) {
  widget()->setGeometry(scale.ToPixels(view.place));
}

QList<QWidget*> ControlBinder::FocusWidgets() const {
  return widget()->focusPolicy() == Qt::NoFocus ? QList<QWidget*>() : QList<QWidget*>{widget()};
}

void ControlBinder::SetCaption(const QString&) {}

}  // namespace orreryui
