#include "platform/dialogs/control_run.h"

#include <algorithm>

#include "platform/dialogs/text_search.h"
#include "platform/strings/code_page_932.h"
#include "platform/system/path.h"

namespace orreryui {
namespace {

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

bool IsPushed(ControlKind kind) {
  return kind == ControlKind::kPushButton || kind == ControlKind::kSwatch;
}

}  // namespace

ControlRun::ControlRun(CDialog& dialog, ModalRun& modal) : dialog_(dialog), modal_(modal) {
  dialog_.model_ = DialogModel(dialog_.template_);
  dialog_.run_ = this;
}

ControlRun::~ControlRun() { Detach(); }

void ControlRun::Detach() {
  if (dialog_.run_ == this) dialog_.run_ = nullptr;
}

void ControlRun::Initialise() {
  dialog_.UpdateData(false);
  dialog_.OnInitDialog();
}

void ControlRun::FocusFirstControl() {
  for (int index = 0; index < Model().Count(); ++index) {
    const orreryui::Control& control = Model().At(index);
    if (!control.TakesFocus() || !control.visible || !control.enabled) continue;
    modal_.SetFocus({this, index});
    return;
  }
}

void ControlRun::FocusCheckedButton() {
  const int focus = modal_.FocusNow().index;
  if (Model().At(focus).kind != ControlKind::kRadioButton) return;
  const auto [first, last] = Model().RadioGroup(focus);
  for (int i = first; i <= last; ++i) {
    if (Model().At(i).checked && Target(Model().At(i).id) >= 0) modal_.SetFocus({this, i});
  }
}

DialogLayout ControlRun::Layout() const {
  DialogLayout layout = Model().Layout();
  layout.title = ToUtf8(Bytes(Model().Title()));
  const ModalRun::Focus& focus = modal_.FocusNow();
  layout.focus = focus.run == this ? Model().At(focus.index).id : kNoControlId;
  return layout;
}

int ControlRun::ControlCount() const { return Model().Count(); }

ControlView ControlRun::Control(int index) const { return ViewOf(Model().At(index)); }

int ControlRun::Target(int id) const {
  const int index = Model().IndexOf(id);
  if (index < 0) return -1;
  const orreryui::Control& control = Model().At(index);
  return control.TakesFocus() && control.visible && control.enabled ? index : -1;
}

void ControlRun::Send(int id, Event event) {
  if (!Ended()) dialog_.OnMessage(id, event);
}

void ControlRun::MoveFocus(int index) {
  const ModalRun::Focus left = modal_.FocusNow();
  const ModalRun::Focus reached{this, index};
  if (left == reached) return;
  modal_.SetFocus(reached);
  Model().Touch();
  if (left.run) left.run->Send(left.run->Model().At(left.index).id, Event::kFocusLost);
}

bool ControlRun::EnterOn(int index) {
  const orreryui::Control& control = Model().At(index);
  if (!IsShown() || Target(control.id) < 0) return false;
  if (control.kind == ControlKind::kMultiLineEdit) {
    Model().Change(index).ReplaceShownText(std::string(control.ShownText()) + "\r\n");
    Send(control.id, Event::kChange);
    return true;
  }
  if (control.kind == ControlKind::kReportList && control.selection >= 0) {
    Send(control.id, Event::kDoubleClick);
    return true;
  }
  if (IsPushed(control.kind)) Send(control.id, Event::kClick);
  return IsPushed(control.kind);
}

void ControlRun::Refresh() {
  if (Ended()) return;
  const std::vector<int> changed = Model().TakeChanged();
  const bool layout_changed = Model().TakeLayoutChanged();
  if (window_ && !changed.empty()) window_->Refresh(changed);
  if (window_ && layout_changed) window_->RefreshLayout();
}

void ControlRun::Focus(int id) {
  const int index = Target(id);
  Gesture([&] {
    if (index >= 0) MoveFocus(index);
  });
}

void ControlRun::Click(int id) {
  const int index = Target(id);
  if (index < 0 || !Model().At(index).IsButton()) return;
  Gesture([&] { PressButton(index); });
}

void ControlRun::PressButton(int index) {
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

void ControlRun::ClickRadioButton(int index) {
  const auto [first, last] = Model().RadioGroup(index);
  for (int i = first; i <= last; ++i) Model().Change(i).checked = i == index;
}

TypedText ControlRun::Type(int id, const std::string& text) {
  const int index = Model().IndexOf(id);
  if (index < 0 || !Model().At(index).HasEditField()) return {};
  std::string refused;
  Gesture([&] {
    if (Target(id) >= 0) refused = TypeInto(index, text);
  });
  return {ToUtf8(Model().At(index).ShownText()), refused};
}

TypedText ControlRun::DropFile(int id, const std::string& path) {
  const int index = Model().IndexOf(id);
  if (index < 0 || (Model().At(index).flags & kTakesFile) == 0) return {};
  const auto dropped = PathFromNative(path);
  if (!dropped) return {ToUtf8(Model().At(index).ShownText()), RefusedInPath(path)};
  CString text = dropped->c_str();
  text.MakeLower();
  return Type(id, ToUtf8(Bytes(text)));
}

// Returns the characters that were left out.
std::string ControlRun::TypeInto(int index, const std::string& text) {
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

bool ControlRun::HasRow(int index, int row) const {
  const orreryui::Control& control = Model().At(index);
  return control.IsList() && row >= 0 && row < static_cast<int>(control.rows.size());
}

void ControlRun::Pick(int id, int row) {
  const int index = Target(id);
  if (index < 0 || !HasRow(index, row)) return;
  Gesture([&] { PickRow(index, row); });
}

void ControlRun::PickRow(int index, int row) {
  MoveFocus(index);
  // The handler of the focus that was lost may have changed the list.
  if (Ended() || !HasRow(index, row)) return;
  if (Model().At(index).kind == ControlKind::kTab) {
    PickTab(index, row);
  } else {
    SelectRow(index, row);
  }
}

void ControlRun::PickTab(int index, int tab) {
  if (Model().At(index).selection == tab) return;
  const int id = Model().At(index).id;
  Send(id, Event::kTabChanging);
  if (Ended()) return;
  Model().Change(index).selection = tab;
  Send(id, Event::kTabChanged);
}

void ControlRun::SelectRow(int index, int row) {
  const int id = Model().At(index).id;
  dialog_.SetCurSel(id, row);
  Send(id, Event::kSelectionChange);
}

void ControlRun::DoubleClick(int id, int row) {
  const int index = Target(id);
  if (index < 0 || !HasRow(index, row) || Model().At(index).kind == ControlKind::kTab) return;
  Gesture([&] {
    MoveFocus(index);
    if (Ended() || !HasRow(index, row)) return;
    if (Model().At(index).selection != row) SelectRow(index, row);
    Send(id, Event::kDoubleClick);
  });
}

void ControlRun::Scroll(int id, int line) {
  const int index = Target(id);
  if (index < 0 || Model().At(index).kind != ControlKind::kMultiLineEdit) return;
  Gesture([&] {
    orreryui::Control& control = Model().Change(index);
    control.part = PartAround(Bytes(control.text), control.part, line);
  });
}

std::optional<TextRange> ControlRun::Find(int id, const std::string& text, int from,
                                          bool backwards) {
  const int index = Target(id);
  if (index < 0 || Model().At(index).kind != ControlKind::kMultiLineEdit) return std::nullopt;
  std::optional<TextRange> found;
  Gesture([&] {
    const Encoded wanted = FromUtf8(text);
    if (wanted.refused.empty()) found = FindIn(index, wanted.bytes, from, backwards);
  });
  return found;
}

// Every character of the code page is one unit of UTF-16.
std::optional<TextRange> ControlRun::FindIn(int index, std::string_view wanted, int from,
                                            bool backwards) {
  const orreryui::Control& control = Model().At(index);
  const std::string_view text = Bytes(control.text);
  const std::size_t start = control.part.begin + OffsetOfCharacter(control.ShownText(), from);
  const auto place = (backwards ? FindPrevious : FindNext)(text, wanted, start);
  if (!place) return std::nullopt;
  if (*place < control.part.begin || *place + wanted.size() > control.part.end) {
    const auto line = std::count(text.begin(), text.begin() + std::ptrdiff_t(*place), '\n');
    Model().Change(index).part = PartAround(text, control.part, static_cast<int>(line));
  }
  const std::size_t begin = control.part.begin;
  const int before = CountCharacters(text.substr(begin, *place - begin));
  return TextRange{before, before + CountCharacters(wanted)};
}

void ControlRun::Paint() {
  Gesture([this] { dialog_.OnPaint(); });
}

}  // namespace orreryui
