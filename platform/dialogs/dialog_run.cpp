#include "platform/dialogs/dialog_run.h"

#include <utility>

#include "platform/strings/code_page_932.h"

namespace orreryui {
namespace {

thread_local DialogRun* innermost = nullptr;

// A one-line box holds no line breaks, and no text holds a NUL.
std::string WithoutForbiddenBytes(std::string text, bool allows_line_breaks) {
  std::erase_if(text, [allows_line_breaks](char c) {
    return c == '\0' || (!allows_line_breaks && (c == '\r' || c == '\n'));
  });
  return text;
}

std::string_view Bytes(const CString& text) {
  return {text, static_cast<std::size_t>(text.GetLength())};
}

}  // namespace

// Refused while another gesture is carried out, when another dialog covers this one, and after the
// end. What it changed reaches the screen when it is over.
template <class Body>
void DialogRun::Gesture(Body body) {
  DialogRun& root = Root();
  if (root.busy_ || root.ended_ || innermost != &root || !IsShown()) return;
  root.busy_ = true;
  try {
    body();
    root.busy_ = false;
    root.Refresh();
  } catch (...) {
    root.GiveUp();
  }
}

DialogRun::DialogRun(CDialog& dialog) : dialog_(dialog), outer_(innermost) {
  dialog_.model_ = DialogModel(dialog_.template_);
  dialog_.run_ = this;
  innermost = this;
}

DialogRun::DialogRun(CDialog& dialog, DialogRun& sheet, int tab_control, int tab)
    : dialog_(dialog), sheet_(&sheet), tab_control_(tab_control), tab_(tab) {
  dialog_.model_ = DialogModel(dialog_.template_);
  sheet.pages_.push_back(this);
  dialog_.run_ = this;
}

DialogRun::~DialogRun() {
  if (sheet_) return;
  for (DialogRun* page : pages_) page->dialog_.run_ = nullptr;
  dialog_.run_ = nullptr;
  innermost = outer_;
}

void DialogRun::Start(DialogWindow& window) {
  window_ = &window;
  if (sheet_) return;
  Gesture([this] {
    FocusFirstControl();
    Initialise();
    // It may have hidden or disabled that control.
    if (focus_run_ == this && Target(Model().At(focus_).id) < 0) FocusFirstControl();
    if (focus_run_ == this) FocusCheckedButton();
  });
}

void DialogRun::Initialise() {
  dialog_.UpdateData(false);
  dialog_.OnInitDialog();
}

void DialogRun::FocusFirstControl() {
  for (int index = 0; index < Model().Count(); ++index) {
    const orreryui::Control& control = Model().At(index);
    if (!control.TakesFocus() || !control.visible || !control.enabled) continue;
    focus_run_ = this;
    focus_ = index;
    return;
  }
}

// Of radio buttons the one that is on has the focus when the dialog opens.
void DialogRun::FocusCheckedButton() {
  if (Model().At(focus_).kind != ControlKind::kRadioButton) return;
  const auto [first, last] = Model().RadioGroup(focus_);
  for (int i = first; i <= last; ++i) {
    if (Model().At(i).checked && Target(Model().At(i).id) >= 0) focus_ = i;
  }
}

DialogLayout DialogRun::Layout() const {
  DialogLayout layout = Model().Layout();
  layout.title = ToUtf8(Bytes(Model().Title()));
  const DialogRun& root = Root();
  layout.focus = root.focus_run_ == this ? Model().At(root.focus_).id : kNoControlId;
  return layout;
}

int DialogRun::ControlCount() const { return Model().Count(); }

ControlView DialogRun::Control(int index) const { return ViewOf(Model().At(index)); }

DialogSession* DialogRun::Page(int tab_control, int tab) {
  for (DialogRun* page : pages_) {
    if (page->tab_control_ == tab_control && page->tab_ == tab) return page;
  }
  return nullptr;
}

bool DialogRun::IsShown() const {
  if (!sheet_) return true;
  const int tabs = sheet_->Model().IndexOf(tab_control_);
  return tabs >= 0 && sheet_->Model().At(tabs).selection == tab_;
}

int DialogRun::Target(int id) const {
  const int index = Model().IndexOf(id);
  if (index < 0) return -1;
  const orreryui::Control& control = Model().At(index);
  return control.TakesFocus() && control.visible && control.enabled ? index : -1;
}

void DialogRun::Send(int id, Event event) {
  if (!Ended()) dialog_.OnMessage(id, event);
}

void DialogRun::MoveFocus(int index) {
  DialogRun& root = Root();
  if (root.focus_run_ == this && root.focus_ == index) return;
  DialogRun* const left_run = std::exchange(root.focus_run_, this);
  const int left = std::exchange(root.focus_, index);
  Model().Touch();
  if (left_run) left_run->Send(left_run->Model().At(left).id, Event::kFocusLost);
}

void DialogRun::Focus(int id) {
  const int index = Target(id);
  Gesture([&] {
    if (index >= 0) MoveFocus(index);
  });
}

void DialogRun::Click(int id) {
  const int index = Target(id);
  if (index < 0 || !Model().At(index).IsButton()) return;
  Gesture([&] { PressButton(index); });
}

void DialogRun::PressButton(int index) {
  MoveFocus(index);
  if (Ended()) return;
  switch (Model().At(index).kind) {
    case ControlKind::kRadioButton:
      ClickRadioButton(index);
      break;
    case ControlKind::kCheckBox:
    case ControlKind::kPushLikeCheckBox:
      Model().Change(index).checked = !Model().At(index).checked;
      break;
    default:
      break;
  }
  Send(Model().At(index).id, Event::kClick);
}

void DialogRun::ClickRadioButton(int index) {
  const auto [first, last] = Model().RadioGroup(index);
  for (int i = first; i <= last; ++i) Model().Change(i).checked = i == index;
}

TypedText DialogRun::Type(int id, const std::string& text) {
  const int index = Model().IndexOf(id);
  if (index < 0 || !Model().At(index).HasEditField()) return {};
  std::string refused;
  Gesture([&] {
    if (Target(id) >= 0) refused = TypeInto(index, text);
  });
  return {ToUtf8(Model().At(index).ShownText()), refused};
}

// Returns the characters that were left out.
std::string DialogRun::TypeInto(int index, const std::string& text) {
  MoveFocus(index);
  const orreryui::Control& control = Model().At(index);
  const bool multi_line = control.kind == ControlKind::kMultiLineEdit;
  const Encoded typed = MergeEdit(control.ShownText(), WithoutForbiddenBytes(text, multi_line));
  if (!Ended() && control.ShownText() != typed.bytes) {
    Model().Change(index).ReplaceShownText(typed.bytes);
    Send(control.id, Event::kChange);
  }
  return typed.refused;
}

bool DialogRun::HasRow(int index, int row) const {
  const orreryui::Control& control = Model().At(index);
  return control.IsList() && row >= 0 && row < static_cast<int>(control.rows.size());
}

void DialogRun::Pick(int id, int row) {
  const int index = Target(id);
  if (index < 0 || !HasRow(index, row)) return;
  Gesture([&] { PickRow(index, row); });
}

void DialogRun::PickRow(int index, int row) {
  MoveFocus(index);
  // The handler of the focus that was lost may have changed the list.
  if (Ended() || !HasRow(index, row)) return;
  if (Model().At(index).kind == ControlKind::kTab) {
    PickTab(index, row);
  } else {
    SelectRow(index, row);
  }
}

void DialogRun::PickTab(int index, int tab) {
  if (Model().At(index).selection == tab) return;
  const int id = Model().At(index).id;
  Send(id, Event::kTabChanging);
  if (Ended()) return;
  Model().Change(index).selection = tab;
  Send(id, Event::kTabChanged);
}

void DialogRun::SelectRow(int index, int row) {
  const int id = Model().At(index).id;
  dialog_.SetCurSel(id, row);
  Send(id, Event::kSelectionChange);
}

void DialogRun::DoubleClick(int id, int row, int column) {
  const int index = Target(id);
  if (index < 0 || !HasRow(index, row) || Model().At(index).kind == ControlKind::kTab) return;
  Gesture([&] {
    MoveFocus(index);
    if (Ended() || !HasRow(index, row)) return;
    if (Model().At(index).selection != row) SelectRow(index, row);
    dialog_.clicked_column_ = column;
    Send(id, Event::kDoubleClick);
  });
}

void DialogRun::Scroll(int id, int line) {
  const int index = Target(id);
  if (index < 0 || Model().At(index).kind != ControlKind::kMultiLineEdit) return;
  Gesture([&] {
    orreryui::Control& control = Model().Change(index);
    control.part = PartAround(Bytes(control.text), control.part, line);
  });
}

void DialogRun::Enter() {
  DialogRun& root = Root();
  root.Gesture([&] { root.PressEnter(); });
}

void DialogRun::PressEnter() {
  if (!focus_run_) return PressDefaultButton();
  DialogRun& run = *focus_run_;
  const orreryui::Control& control = run.Model().At(focus_);
  const bool reached = run.IsShown() && run.Target(control.id) >= 0;
  const bool is_button =
      control.kind == ControlKind::kPushButton || control.kind == ControlKind::kSwatch;
  if (reached && control.kind == ControlKind::kMultiLineEdit) {
    run.Model().Change(focus_).ReplaceShownText(std::string(control.ShownText()) + "\r\n");
    run.Send(control.id, Event::kChange);
  } else if (reached && is_button) {
    run.Send(control.id, Event::kClick);
  } else {
    PressDefaultButton();
  }
}

void DialogRun::PressDefaultButton() {
  for (int index = 0; index < Model().Count(); ++index) {
    const orreryui::Control& control = Model().At(index);
    if ((control.flags & kDefaultButton) == 0) continue;
    if (Target(control.id) >= 0) Send(control.id, Event::kClick);
    return;
  }
  Send(IDOK, Event::kClick);
}

void DialogRun::Escape() {
  DialogRun& root = Root();
  root.Gesture([&] { root.Send(IDCANCEL, Event::kClick); });
}

void DialogRun::Paint() {
  Gesture([this] { dialog_.OnPaint(); });
}

void DialogRun::End(int code) {
  DialogRun& root = Root();
  if (root.ended_) return;
  root.ended_ = true;
  root.result_ = code;
}

void DialogRun::GiveUp() {
  busy_ = false;
  ended_ = true;
  result_ = -1;
}

void DialogRun::Refresh() {
  if (Ended()) return;
  const std::vector<int> changed = Model().TakeChanged();
  const bool layout_changed = Model().TakeLayoutChanged();
  if (window_ && !changed.empty()) window_->Refresh(changed);
  if (window_ && layout_changed) window_->RefreshLayout();
  for (DialogRun* page : pages_) page->Refresh();
}

void DialogRun::RefreshInnermost() {
  if (innermost) innermost->Refresh();
}

}  // namespace orreryui
