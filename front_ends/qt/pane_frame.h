// What the panes of a dialog need of the window that they stand in.
#ifndef ORRERYUI_FRONT_ENDS_QT_PANE_FRAME_H_
#define ORRERYUI_FRONT_ENDS_QT_PANE_FRAME_H_

#include "platform/front_end.h"

namespace orreryui {

class PaneFrame {
 public:
  virtual ~PaneFrame() = default;

  virtual bool Ended() const = 0;

  // The page over a tab, or null.
  virtual ControlSession* Page(int tab_control, int tab) = 0;

  virtual void GestureDone() = 0;  // to be called after each gesture on a pane
  virtual void PressEnter() = 0;
  virtual void PressEscape() = 0;
  virtual void ContentsChanged() = 0;  // a pane has other controls or texts now
  virtual void FocusChanged() = 0;     // another control is to have the input focus now

  // Ends the dialog as if the user had given up, whatever its handlers say.
  virtual void Abandon() = 0;

  // Runs a gesture, from inside an input event. Nothing that is thrown goes on into Qt.
  template <typename Function>
  void Guarded(Function function) {
    try {
      function();
    } catch (...) {
      Abandon();
    }
  }

  // Whether widgets are being changed on the program's behalf, so that their signals and the moves
  // of the focus mean nothing.
  bool quiet() const { return quiet_ > 0; }

  template <typename Function>
  void Quietly(Function function) {
    ++quiet_;
    function();
    --quiet_;
  }

 private:
  int quiet_ = 0;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_PANE_FRAME_H_
