// One control of a dialog and its widget: shows the control's state, reports what the user does.
#ifndef ORRERYUI_FRONT_ENDS_QT_CONTROL_BINDER_H_
#define ORRERYUI_FRONT_ENDS_QT_CONTROL_BINDER_H_

#include <QList>
#include <QWidget>

#include "front_ends/qt/dialog_scale.h"
#include "front_ends/qt/gesture_runner.h"
#include "platform/front_end.h"

namespace orreryui {

// Where a binder stands.
struct BinderPlace {
  GestureRunner& runner;
  QWidget* parent;
  int index;  // of the control in its session
  int id;
};

// Widgets belong to their parent widget, binders to the pane that made them.
class ControlBinder {
 public:
  explicit ControlBinder(const BinderPlace& place);
  virtual ~ControlBinder() = default;
  ControlBinder(const ControlBinder&) = delete;
  ControlBinder& operator=(const ControlBinder&) = delete;

  int id() const { return place_.id; }
  virtual QWidget* widget() const = 0;

  // Brings the widget in line with the control. What is the same already isn't touched, so that a
  // cursor, a scroll position or a text being composed survives.
  void Show(const ControlView& view);

  // The size in pixels that the text needs when the control is given `offered`; `offered` itself
  // if all fits.
  virtual QSize Needed(const ControlView& view, QSize offered) const;

  // Puts the widget in its place.
  virtual void Arrange(const ControlView& view, const DialogScale& scale);

  // The widgets that take the input focus, in tab order.
  virtual QList<QWidget*> FocusWidgets() const;

  // The widget inside this control's that is to have the input focus; null if it isn't in there.
  virtual QWidget* InnerFocusWidget() const { return nullptr; }

  // Tells a screen reader the text that stands before the control: the name of what has no label,
  // what a radio button decides.
  virtual void SetCaption(const QString& caption);

  // Called when a gesture has run, whatever its control.
  virtual void AfterGesture() {}

 protected:
  virtual void ShowState(const ControlView& view) = 0;

  int index() const { return place_.index; }
  GestureRunner& runner() const { return place_.runner; }
  void Run(const GestureRunner::Gesture& gesture) const {
    place_.runner.Run(place_.index, gesture);
  }

 private:
  BinderPlace place_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_CONTROL_BINDER_H_
