// The controls of one template while they are on the screen, and the rules for what the user does
// to them: what each gesture changes in the model, and which events go to the dialog's handlers in
// which order. A dialog of its own, a page and a panel have this in common.
#ifndef ORRERYUI_PLATFORM_DIALOGS_CONTROL_RUN_H_
#define ORRERYUI_PLATFORM_DIALOGS_CONTROL_RUN_H_

#include <optional>
#include <string>
#include <string_view>

#include "platform/dialogs/dialog.h"
#include "platform/dialogs/modal_run.h"
#include "platform/front_end.h"

namespace orreryui {

class ControlRun : public virtual ControlSession {
 public:
  // Both outlive the run; a dialog's model starts from its template anew.
  ControlRun(CDialog& dialog, ModalRun& modal);
  ~ControlRun() override;
  ControlRun(const ControlRun&) = delete;
  ControlRun& operator=(const ControlRun&) = delete;

  void Start(DialogWindow& window) override { window_ = &window; }
  bool Ended() const override { return modal_.HasEnded(); }
  DialogLayout Layout() const override;
  int ControlCount() const override;
  ControlView Control(int index) const override;
  void Focus(int id) override;
  void Click(int id) override;
  TypedText Type(int id, const std::string& text) override;
  TypedText DropFile(int id, const std::string& path) override;
  void Pick(int id, int row) override;
  void DoubleClick(int id, int row) override;
  void Scroll(int id, int line) override;
  std::optional<TextRange> Find(int id, const std::string& text, int from, bool backwards) override;
  void Paint() override;

  // The dialog ends itself.
  virtual void End(int code) { modal_.Finish(code); }

  // Fills the bound boxes and runs the dialog's initialisation.
  void Initialise();

  void MoveFocus(int index);

  // Enter, while the control at this index has the focus. False if it has no answer of its own.
  bool EnterOn(int index);

  // Tells the window what has changed.
  virtual void Refresh();

  // The dialog runs no more.
  void Detach();

 protected:
  virtual bool IsShown() const { return true; }

  DialogModel& Model() const { return dialog_.model_; }
  CDialog& Dialog() const { return dialog_; }
  ModalRun& Modal() const { return modal_; }
  int Target(int id) const;  // the index of a control that the user can reach, or -1
  void Send(int id, Event event);

  // The control that has the focus when the dialog opens: the first in the order of tabs, of radio
  // buttons the one that is on.
  void FocusFirstControl();
  void FocusCheckedButton();

 private:
  template <class Body>
  void Gesture(Body body) {
    if (IsShown()) modal_.Gesture(body);
  }

  bool HasRow(int index, int row) const;
  void PressButton(int index);
  void ClickRadioButton(int index);
  std::string TypeInto(int index, const std::string& text);
  void PickRow(int index, int row);
  void PickTab(int index, int tab);
  void SelectRow(int index, int row);
  std::optional<TextRange> FindIn(int index, std::string_view wanted, int from, bool backwards);

  CDialog& dialog_;
  ModalRun& modal_;
  DialogWindow* window_ = nullptr;
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_CONTROL_RUN_H_
