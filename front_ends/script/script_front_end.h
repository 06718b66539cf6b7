// A front end without a screen: an ordered queue of what opens and of what the user does in it.
//
//   ScriptFrontEnd script;
//   ScopedFrontEnd scope(&script);
//   script.OpensDialog(134).Type(101, "鎌倉").Click(103).Shows(101, "登録されました！").Click(1);
//   OnDataSourceSet(0, "off", folder);
//   EXPECT_EQ(script.Failures(), "");
//
// Steps are taken in the order in which they were queued, by whichever window is the innermost one
// at that moment: the steps between OpensDialog and the one that ends the dialog belong to it, and
// a message box or an inner dialog that a step brings up takes the steps behind that one.
//
// A window that wasn't expected, a step that was never reached, an unknown control, a gesture on a
// control that the user couldn't reach and a look that finds something else are failures. After the
// first one every window is given up, so that the call under test ends.
#ifndef ORRERYUI_FRONT_ENDS_SCRIPT_SCRIPT_FRONT_END_H_
#define ORRERYUI_FRONT_ENDS_SCRIPT_SCRIPT_FRONT_END_H_

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/front_end.h"

namespace orreryui {

class ScriptFrontEnd : public FrontEnd {
 public:
  // What a step may do to the dialog, page or panel that is open. A text that isn't empty is a
  // failure.
  using Action = std::function<std::string(ControlSession&)>;

  ScriptFrontEnd() = default;

  ScriptFrontEnd& OpensDialog(int number);
  ScriptFrontEnd& Focus(int id);
  ScriptFrontEnd& Click(int id);
  ScriptFrontEnd& Type(int id, const std::string& text, const std::string& refused = "");
  ScriptFrontEnd& DropFile(int id, const std::string& path, const std::string& refused = "");
  ScriptFrontEnd& Pick(int id, int row);
  ScriptFrontEnd& DoubleClick(int id, int row);
  ScriptFrontEnd& Enter();
  ScriptFrontEnd& Escape();
  ScriptFrontEnd& Paint();

  // The steps behind it go to the page of this tab, up to OnSheet or the end of the dialog.
  ScriptFrontEnd& OnPage(int tab_control, int tab);
  ScriptFrontEnd& OnSheet();

  // Looks at the dialog: its title; a control's text, rows (the first column), selected row, check
  // mark, or whether the user can reach it; anything else.
  ScriptFrontEnd& ShowsTitle(const std::string& title);
  ScriptFrontEnd& Shows(int id, const std::string& text);
  ScriptFrontEnd& ShowsRows(int id, const std::vector<std::string>& rows);
  ScriptFrontEnd& ShowsSelection(int id, int row);
  ScriptFrontEnd& ShowsCheck(int id, bool checked);
  ScriptFrontEnd& ShowsReach(int id, bool visible, bool enabled);
  ScriptFrontEnd& Does(Action action);

  // The windows that aren't dialogs, and what the user answers. Nothing is giving up.
  ScriptFrontEnd& ShowsMessage(const std::string& text, MessageBoxAnswer answer);
  ScriptFrontEnd& ChoosesFile(std::optional<std::string> path);
  ScriptFrontEnd& ChoosesColour(std::uint32_t start, std::optional<std::uint32_t> colour);
  ScriptFrontEnd& Beeps();

  // A file chooser with the panel of this template. The steps behind it, up to Accepts or GivesUp,
  // are gestures and looks on the panel, and what the user does in the chooser itself. Paths are
  // full ones.
  ScriptFrontEnd& OpensPanel(int number);
  ScriptFrontEnd& SelectsFile(const std::string& path);  // the row of a file
  ScriptFrontEnd& ChangesFolder();
  ScriptFrontEnd& TypesName(const std::string& path);
  ScriptFrontEnd& ShowsAcceptLabel(const std::string& label);
  ScriptFrontEnd& Accepts();  // the file that was selected, or whose name was typed, last
  ScriptFrontEnd& GivesUp();

  // All that went wrong so far, and the steps that were not reached, one a line.
  std::string Failures() const;

  // What the last file chooser was asked for.
  const FileChooserRequest& LastFileRequest() const { return last_file_request_; }

  bool RunDialog(DialogSession& session) override;
  MessageBoxAnswer ShowMessage(const std::string& text) override;
  std::optional<std::string> ChooseFile(const FileChooserRequest& request) override;
  std::optional<std::uint32_t> ChooseColour(std::uint32_t start) override;
  void Beep() override;
  void WaitUntil(const std::function<bool()>& done) override;

 private:
  // A step is a window that opens, or an action in the window that is open.
  struct Step {
    std::string description;
    std::string window;  // what opens; empty for an action
    Action action;
    MessageBoxAnswer answer = MessageBoxAnswer::kCancel;
    std::optional<std::string> path;
    std::optional<std::uint32_t> colour;
  };

  ScriptFrontEnd& AddWindow(Step step);
  ScriptFrontEnd& AddAction(const std::string& description, Action action);
  ScriptFrontEnd& AddGesture(const std::string& description, int id, Action gesture);
  ScriptFrontEnd& AddLook(const std::string& description, int id,
                          std::function<std::string(const ControlView&)> look);

  void Fail(const std::string& failure);
  void PlayStep(ControlSession& session);
  std::optional<std::string> RunPanel(PanelSession& panel);
  std::optional<Step> TakeWindow(const std::string& window);

  std::deque<Step> steps_;
  std::vector<std::string> failures_;
  FileChooserRequest last_file_request_;

  // A file chooser that is open, with a panel.
  struct Chooser {
    PanelSession& panel;
    std::string name;  // of the file
    bool done = false;
    std::optional<std::string> result = {};
  };
  ScriptFrontEnd& AddChooserAction(const std::string& description,
                                   std::function<std::string(Chooser&)> action);

  // What takes the steps: the innermost dialog, or the page that OnPage has sent them to, or the
  // chooser.
  struct Innermost {
    DialogSession* dialog = nullptr;
    ControlSession* page = nullptr;
    Chooser* chooser = nullptr;
  };
  Innermost innermost_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_SCRIPT_SCRIPT_FRONT_END_H_
