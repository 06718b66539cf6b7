// One run of a dialog: the rules of the platform. A run takes the user's gestures from the front
// end, changes the model as each of them demands, and sends the events to the dialog's handlers in
// the order that the dialogs rely on. What a handler throws ends the run with -1, as if the dialog
// had never been shown.
#ifndef ORRERYUI_PLATFORM_DIALOGS_DIALOG_RUN_H_
#define ORRERYUI_PLATFORM_DIALOGS_DIALOG_RUN_H_

#include <string>
#include <vector>

#include "platform/dialogs/dialog.h"
#include "platform/front_end.h"

namespace orreryui {

class DialogRun : public DialogSession {
 public:
  // A dialog of its own.
  explicit DialogRun(CDialog& dialog);
  // A page over tab `tab` of the control `tab_control` of the sheet that `sheet` runs.
  DialogRun(CDialog& dialog, DialogRun& sheet, int tab_control, int tab);
  ~DialogRun() override;

  void Start(DialogWindow& window) override;
  bool Ended() const override { return Root().ended_; }
  DialogLayout Layout() const override;
  int ControlCount() const override;
  ControlView Control(int index) const override;
  DialogSession* Page(int tab_control, int tab) override;
  void Focus(int id) override;
  void Click(int id) override;
  TypedText Type(int id, const std::string& text) override;
  void Pick(int id, int row) override;
  void DoubleClick(int id, int row, int column) override;
  void Scroll(int id, int line) override;
  void Enter() override;
  void Escape() override;
  void Paint() override;

  void End(int code);
  int Result() const { return result_; }
  void MoveFocus(int index);

  // Runs the dialog's initialisation, as Start does for a dialog that isn't a page.
  void Initialise();

  // Tells the windows of the innermost dialog what has changed so far. Due before anything opens
  // above it.
  static void RefreshInnermost();

 private:
  // Carries out one gesture, unless it is refused.
  template <class Body>
  void Gesture(Body body);

  DialogRun& Root() { return sheet_ ? sheet_->Root() : *this; }
  const DialogRun& Root() const { return sheet_ ? sheet_->Root() : *this; }
  DialogModel& Model() const { return dialog_.model_; }

  int Target(int id) const;  // the index of a control that the user can reach, or -1
  bool HasRow(int index, int row) const;
  bool IsShown() const;  // a page is, while its tab is selected
  void Send(int id, Event event);
  void PressButton(int index);
  void ClickRadioButton(int index);
  std::string TypeInto(int index, const std::string& text);
  void PressEnter();
  void PressDefaultButton();
  void GiveUp();
  void PickRow(int index, int row);
  void PickTab(int index, int tab);
  void SelectRow(int index, int row);
  void Refresh();
  void FocusFirstControl();
  void FocusCheckedButton();

  CDialog& dialog_;
  DialogWindow* window_ = nullptr;
  DialogRun* sheet_ = nullptr;  // of a page
  int tab_control_ = kNoControlId;
  int tab_ = -1;
  std::vector<DialogRun*> pages_;

  // Of a root only.
  DialogRun* outer_ = nullptr;      // the run that this one covers
  DialogRun* focus_run_ = nullptr;  // the dialog or page whose control has the focus
  int focus_ = -1;                  // that control's index
  bool busy_ = false;               // a gesture is being carried out
  bool ended_ = false;
  int result_ = -1;
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_DIALOG_RUN_H_
