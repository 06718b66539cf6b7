// What takes the user's gestures: the innermost of the dialogs that are open, or the panel of a
// file chooser above it. Knows whether a gesture may run now, which control has the focus, and how
// the run has ended. What a handler throws ends the run with -1, as if it had never been shown.
#ifndef ORRERYUI_PLATFORM_DIALOGS_MODAL_RUN_H_
#define ORRERYUI_PLATFORM_DIALOGS_MODAL_RUN_H_

namespace orreryui {

class ControlRun;

class ModalRun {
 public:
  // A control with the focus: the template's run that it stands on, and its index there.
  struct Focus {
    ControlRun* run = nullptr;
    int index = -1;

    bool operator==(const Focus&) const = default;
  };

  ModalRun();
  virtual ~ModalRun();
  ModalRun(const ModalRun&) = delete;
  ModalRun& operator=(const ModalRun&) = delete;

  bool HasEnded() const { return ended_; }
  int Result() const { return result_; }
  void Finish(int code);  // the first code counts

  const Focus& FocusNow() const { return focus_; }
  void SetFocus(const Focus& focus) { focus_ = focus; }

  // Carries out one gesture. It is refused while another one is carried out, while another run
  // covers this one, and after the end. What it changed reaches the screen when it is over.
  template <class Body>
  void Gesture(Body body) {
    if (!Begin()) return;
    try {
      body();
      busy_ = false;
      RefreshAll();
    } catch (...) {
      GiveUp();
    }
  }

  // Tells the windows of the innermost run what has changed so far. Due before anything opens above
  // it.
  static void RefreshInnermost();

 protected:
  virtual void RefreshAll() = 0;

 private:
  bool Begin();
  void GiveUp();

  ModalRun* const outer_;  // the run that this one covers
  Focus focus_;
  bool busy_ = false;  // a gesture is being carried out
  bool ended_ = false;
  int result_ = -1;
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_MODAL_RUN_H_
