// The controls of one session, on one widget: the inside of a dialog, or a page of a tab control.
#ifndef ORRERYUI_FRONT_ENDS_QT_CONTROL_PANE_H_
#define ORRERYUI_FRONT_ENDS_QT_CONTROL_PANE_H_

#include <QWidget>
#include <memory>
#include <vector>

#include "front_ends/qt/control_binder.h"
#include "front_ends/qt/input_filter.h"
#include "front_ends/qt/make_binder.h"
#include "front_ends/qt/pane_frame.h"
#include "platform/front_end.h"

namespace orreryui {

class ControlPane : public QWidget, public DialogWindow, private GestureRunner {
 public:
  // Session and frame outlive the pane.
  ControlPane(ControlSession& session, PaneFrame& frame, QWidget* parent);

  // Makes the widgets. The session has been started.
  void Build();

  // As NeededSize of the controls: the scale, at least `scale`, that one more step towards fitting
  // all texts takes. The same scale if all fit.
  DialogScale Grow(DialogScale scale) const;

  // Grows from `scale` until all texts fit, or to `most`.
  DialogScale GrowUpTo(DialogScale scale, const DialogScale& most) const;

  // `gain`, in dialog units, goes to the control that grows.
  void Arrange(const DialogScale& scale, QPoint gain = {});

  // The place in the template of the control that grows; null if there is none.
  const DialogRect* GrowingPlace() const;

  QList<QWidget*> FocusWidgets() const;

  // The widget, also on a page of a tab control, that is to have the input focus and can take it;
  // null if there is none.
  QWidget* FocusWidget() const;

  // To be called when a gesture has run on any pane of the window.
  void AfterGesture();

  // DialogWindow, for a pane that is a page.
  void Refresh(const std::vector<int>& indices) override;
  void RefreshLayout() override;

 private:
  void Run(int index, const Gesture& gesture) override;
  void PressEnter() override { frame_.PressEnter(); }
  void PressEscape() override { frame_.PressEscape(); }

  void AddControl(int index);
  void SetCaptions();
  void ShowControl(int index);
  void ShowAfterGesture(int index);

  struct Shown {
    std::unique_ptr<ControlBinder> binder;
    ControlView view;       // as the binder shows it,
    bool arranged = false;  // and whether that has its room
  };
  void ArrangeControl(const Shown& shown) const;
  Shown& At(int index) { return controls_[std::size_t(index)]; }

  ControlSession& session_;
  PaneFrame& frame_;
  InputFilter filter_;
  std::vector<Shown> controls_;  // by index
  DialogScale scale_;            // of the last arrangement,
  QPoint gain_;                  // and what the window had gained then
  ButtonGroups button_groups_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_CONTROL_PANE_H_
