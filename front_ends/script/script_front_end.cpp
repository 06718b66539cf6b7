#include "front_ends/script/script_front_end.h"

#include <chrono>
#include <cstdio>
#include <thread>
#include <utility>

namespace orreryui {
namespace {

// A window that draws nothing: looks read the session itself.
class NoWindow : public DialogWindow {
 public:
  void Refresh(const std::vector<int>&) override {}
  void RefreshLayout() override {}
};

constexpr char kNoDialog[] = "no dialog is innermost";

std::optional<ControlView> FindControl(const ControlSession& session, int id) {
  for (int index = 0; index < session.ControlCount(); ++index) {
    ControlView view = session.Control(index);
    if (view.id == id) return view;
  }
  return std::nullopt;
}

std::string Differs(const std::string& found, const std::string& expected) {
  return found == expected ? "" : "shows \"" + found + "\", not \"" + expected + "\"";
}

std::string Joined(const std::vector<std::string>& rows) {
  std::string text;
  for (const std::string& row : rows) text += row + "\n";
  return text;
}

std::string Hex(std::uint32_t colour) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%06X", static_cast<unsigned>(colour));
  return text;
}

}  // namespace

ScriptFrontEnd& ScriptFrontEnd::AddWindow(Step step) {
  step.description = step.window;
  steps_.push_back(std::move(step));
  return *this;
}

ScriptFrontEnd& ScriptFrontEnd::AddAction(const std::string& description, Action action) {
  steps_.push_back({.description = description,
                    .window = {},
                    .action = std::move(action),
                    .path = {},
                    .colour = {}});
  return *this;
}

ScriptFrontEnd& ScriptFrontEnd::AddGesture(const std::string& description, int id, Action gesture) {
  auto action = [id, gesture = std::move(gesture)](ControlSession& session) -> std::string {
    const std::optional<ControlView> view = FindControl(session, id);
    if (!view) return "no such control";
    if (!view->visible) return "the control is hidden";
    if (!view->enabled) return "the control is disabled";
    return gesture(session);
  };
  return AddAction(description + " " + std::to_string(id), std::move(action));
}

ScriptFrontEnd& ScriptFrontEnd::AddLook(const std::string& description, int id,
                                        std::function<std::string(const ControlView&)> look) {
  auto action = [id, look = std::move(look)](ControlSession& session) -> std::string {
    const std::optional<ControlView> view = FindControl(session, id);
    return view ? look(*view) : "no such control";
  };
  return AddAction(description + " " + std::to_string(id), std::move(action));
}

ScriptFrontEnd& ScriptFrontEnd::OpensDialog(int number) {
  Step step;
  step.window = "dialog " + std::to_string(number);
  return AddWindow(std::move(step));
}

ScriptFrontEnd& ScriptFrontEnd::Focus(int id) {
  return AddGesture("focus", id, [id](ControlSession& session) {
    session.Focus(id);
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::Click(int id) {
  return AddGesture("click", id, [id](ControlSession& session) {
    session.Click(id);
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::Type(int id, const std::string& text, const std::string& refused) {
  return AddGesture("type into", id, [=](ControlSession& session) -> std::string {
    const TypedText typed = session.Type(id, text);
    return typed.refused == refused ? "" : "refuses \"" + typed.refused + "\"";
  });
}

ScriptFrontEnd& ScriptFrontEnd::DropFile(int id, const std::string& path,
                                         const std::string& refused) {
  return AddGesture("drop a file onto", id, [=](ControlSession& session) -> std::string {
    const TypedText typed = session.DropFile(id, path);
    return typed.refused == refused ? "" : "refuses \"" + typed.refused + "\"";
  });
}

ScriptFrontEnd& ScriptFrontEnd::Pick(int id, int row) {
  return AddGesture("pick in", id, [id, row](ControlSession& session) -> std::string {
    const int rows = static_cast<int>(FindControl(session, id)->rows.size());
    if (row < 0 || row >= rows) return "no row " + std::to_string(row);
    session.Pick(id, row);
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::DoubleClick(int id, int row) {
  return AddGesture("double click in", id, [=](ControlSession& session) -> std::string {
    const int rows = static_cast<int>(FindControl(session, id)->rows.size());
    if (row < 0 || row >= rows) return "no row " + std::to_string(row);
    session.DoubleClick(id, row);
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::Enter() {
  return AddAction("Enter", [this](ControlSession&) -> std::string {
    if (!innermost_.dialog) return kNoDialog;
    innermost_.dialog->Enter();
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::Escape() {
  return AddAction("Esc", [this](ControlSession&) -> std::string {
    if (!innermost_.dialog) return kNoDialog;
    innermost_.dialog->Escape();
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::Paint() {
  return AddAction("paint", [](ControlSession& session) {
    session.Paint();
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::OnPage(int tab_control, int tab) {
  return AddAction("go to a page", [=, this](ControlSession&) -> std::string {
    if (!innermost_.dialog) return kNoDialog;
    innermost_.page = innermost_.dialog->Page(tab_control, tab);
    return innermost_.page ? "" : "no page over tab " + std::to_string(tab);
  });
}

ScriptFrontEnd& ScriptFrontEnd::OnSheet() {
  return AddAction("go to the sheet", [this](ControlSession&) {
    innermost_.page = nullptr;
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::ShowsTitle(const std::string& title) {
  return AddAction(
      "title", [title](ControlSession& session) { return Differs(session.Layout().title, title); });
}

ScriptFrontEnd& ScriptFrontEnd::Shows(int id, const std::string& text) {
  return AddLook("text of", id,
                 [text](const ControlView& view) { return Differs(view.text, text); });
}

ScriptFrontEnd& ScriptFrontEnd::ShowsRows(int id, const std::vector<std::string>& rows) {
  return AddLook("rows of", id, [rows](const ControlView& view) {
    std::vector<std::string> found;
    for (const std::vector<std::string>& row : view.rows) found.push_back(row.front());
    return Differs(Joined(found), Joined(rows));
  });
}

ScriptFrontEnd& ScriptFrontEnd::ShowsSelection(int id, int row) {
  return AddLook("selection of", id, [row](const ControlView& view) {
    return Differs(std::to_string(view.selection), std::to_string(row));
  });
}

ScriptFrontEnd& ScriptFrontEnd::ShowsCheck(int id, bool checked) {
  return AddLook("check of", id, [checked](const ControlView& view) {
    return Differs(view.checked ? "on" : "off", checked ? "on" : "off");
  });
}

ScriptFrontEnd& ScriptFrontEnd::ShowsReach(int id, bool visible, bool enabled) {
  auto name = [](bool is_visible, bool is_enabled) -> std::string {
    return std::string(is_visible ? "visible" : "hidden") + (is_enabled ? "" : ", disabled");
  };
  return AddLook("reach of", id, [=](const ControlView& view) {
    return Differs(name(view.visible, view.enabled), name(visible, enabled));
  });
}

ScriptFrontEnd& ScriptFrontEnd::Does(Action action) {
  return AddAction("own step", std::move(action));
}

ScriptFrontEnd& ScriptFrontEnd::ShowsMessage(const std::string& text, MessageBoxAnswer answer) {
  Step step;
  step.window = "message \"" + text + "\"";
  step.answer = answer;
  return AddWindow(std::move(step));
}

ScriptFrontEnd& ScriptFrontEnd::ChoosesFile(std::optional<std::string> path) {
  Step step;
  step.window = "file chooser";
  step.path = std::move(path);
  return AddWindow(std::move(step));
}

ScriptFrontEnd& ScriptFrontEnd::ChoosesColour(std::uint32_t start,
                                              std::optional<std::uint32_t> colour) {
  Step step;
  step.window = "colour chooser at " + Hex(start);
  step.colour = colour;
  return AddWindow(std::move(step));
}

ScriptFrontEnd& ScriptFrontEnd::Beeps() {
  Step step;
  step.window = "beep";
  return AddWindow(std::move(step));
}

ScriptFrontEnd& ScriptFrontEnd::OpensPanel(int number) {
  Step step;
  step.window = "file chooser with panel " + std::to_string(number);
  return AddWindow(std::move(step));
}

ScriptFrontEnd& ScriptFrontEnd::AddChooserAction(const std::string& description,
                                                 std::function<std::string(Chooser&)> action) {
  return AddAction(description, [this, action = std::move(action)](ControlSession&) -> std::string {
    return innermost_.chooser ? action(*innermost_.chooser) : "no chooser is open";
  });
}

ScriptFrontEnd& ScriptFrontEnd::SelectsFile(const std::string& path) {
  return AddChooserAction("select " + path, [path](Chooser& chooser) {
    chooser.name = path;
    chooser.panel.SelectFile(path);
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::ChangesFolder() {
  return AddChooserAction("change the folder", [](Chooser& chooser) {
    chooser.panel.ChangeFolder();
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::TypesName(const std::string& path) {
  return AddChooserAction("type the name " + path, [path](Chooser& chooser) {
    chooser.name = path;
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::ShowsAcceptLabel(const std::string& label) {
  return AddChooserAction("label of the accepting button", [label](Chooser& chooser) {
    return Differs(chooser.panel.AcceptLabel(), label);
  });
}

ScriptFrontEnd& ScriptFrontEnd::Accepts() {
  return AddChooserAction("accept", [](Chooser& chooser) -> std::string {
    if (chooser.name.empty()) return "no file is selected or named";
    chooser.result = chooser.name;
    chooser.done = true;
    return "";
  });
}

ScriptFrontEnd& ScriptFrontEnd::GivesUp() {
  return AddChooserAction("give up", [](Chooser& chooser) {
    chooser.done = true;
    return "";
  });
}

std::string ScriptFrontEnd::Failures() const {
  std::vector<std::string> all = failures_;
  for (const Step& step : steps_) all.push_back("not reached: " + step.description);
  return Joined(all);
}

void ScriptFrontEnd::Fail(const std::string& failure) { failures_.push_back(failure); }

std::optional<ScriptFrontEnd::Step> ScriptFrontEnd::TakeWindow(const std::string& window) {
  if (!failures_.empty()) return std::nullopt;
  if (steps_.empty() || steps_.front().window != window) {
    const std::string next = steps_.empty() ? "nothing" : steps_.front().description;
    Fail("unexpected: " + window + "; the script has " + next);
    return std::nullopt;
  }
  Step step = std::move(steps_.front());
  steps_.pop_front();
  return step;
}

bool ScriptFrontEnd::RunDialog(DialogSession& session) {
  const std::string window = "dialog " + std::to_string(session.Layout().number);
  if (!TakeWindow(window)) return false;
  const Innermost outer = std::exchange(innermost_, {.dialog = &session});
  NoWindow no_window;
  session.Start(no_window);
  if (!session.Ended()) session.Paint();
  while (!session.Ended() && failures_.empty()) PlayStep(session);
  if (!session.Ended()) session.Escape();
  innermost_ = outer;
  return true;
}

void ScriptFrontEnd::PlayStep(ControlSession& session) {
  if (steps_.empty() || !steps_.front().window.empty()) {
    const std::string next = steps_.empty() ? "" : " before " + steps_.front().description;
    return Fail("dialog " + std::to_string(session.Layout().number) + " was left open" + next);
  }
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  const std::string failure = step.action(innermost_.page ? *innermost_.page : session);
  if (!failure.empty()) Fail(step.description + ": " + failure);
}

MessageBoxAnswer ScriptFrontEnd::ShowMessage(const std::string& text) {
  const std::optional<Step> step = TakeWindow("message \"" + text + "\"");
  return step ? step->answer : MessageBoxAnswer::kCancel;
}

std::optional<std::string> ScriptFrontEnd::ChooseFile(const FileChooserRequest& request) {
  last_file_request_ = request;
  if (request.panel) return RunPanel(*request.panel);
  const std::optional<Step> step = TakeWindow("file chooser");
  return step ? step->path : std::nullopt;
}

std::optional<std::string> ScriptFrontEnd::RunPanel(PanelSession& panel) {
  const std::string window = "file chooser with panel " + std::to_string(panel.Layout().number);
  if (!TakeWindow(window)) return std::nullopt;
  Chooser chooser{panel, ""};
  const Innermost outer = std::exchange(innermost_, {.chooser = &chooser});
  NoWindow no_window;
  panel.Start(no_window);
  panel.Paint();
  while (!panel.Ended() && !chooser.done && failures_.empty()) PlayStep(panel);
  innermost_ = outer;
  return chooser.result;
}

std::optional<std::uint32_t> ScriptFrontEnd::ChooseColour(std::uint32_t start) {
  const std::optional<Step> step = TakeWindow("colour chooser at " + Hex(start));
  return step ? step->colour : std::nullopt;
}

void ScriptFrontEnd::Beep() { TakeWindow("beep"); }

void ScriptFrontEnd::WaitUntil(const std::function<bool()>& done) {
  while (!done()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

}  // namespace orreryui
