#include "platform/dialogs/dialog_model.h"

#include <string>
#include <utility>

#include "platform/strings/code_page_932.h"

namespace orreryui {
namespace {

std::string_view Bytes(const CString& text) {
  return {text, static_cast<std::size_t>(text.GetLength())};
}

Control MakeControl(const ControlTemplate& source) {
  Control control;
  control.kind = source.kind;
  control.id = source.id;
  control.place = source.place;
  control.flags = source.flags;
  control.visible = (source.flags & kHidden) == 0;
  control.enabled = (source.flags & kDisabled) == 0;
  control.SetText(source.text);
  control.description = source.description;
  for (const char* item : source.items) control.rows.push_back({CString(item)});
  return control;
}

}  // namespace

bool Control::TakesFocus() const {
  const bool shows_only = (flags & kShowsOnly) != 0;
  return kind != ControlKind::kStatic && kind != ControlKind::kGroupBox && !shows_only;
}

bool Control::IsButton() const {
  switch (kind) {
    case ControlKind::kPushButton:
    case ControlKind::kSwatch:
    case ControlKind::kRadioButton:
    case ControlKind::kCheckBox:
    case ControlKind::kPushLikeCheckBox:
      return true;
    default:
      return false;
  }
}

bool Control::HasEditField() const {
  switch (kind) {
    case ControlKind::kEdit:
    case ControlKind::kMultiLineEdit:
    case ControlKind::kComboBox:
    case ControlKind::kSimpleComboBox:
      return true;
    default:
      return false;
  }
}

bool Control::IsList() const {
  switch (kind) {
    case ControlKind::kComboBox:
    case ControlKind::kSimpleComboBox:
    case ControlKind::kListBox:
    case ControlKind::kReportList:
    case ControlKind::kTab:
      return true;
    default:
      return false;
  }
}

void Control::SetText(CString new_text) {
  text = std::move(new_text);
  if (kind == ControlKind::kMultiLineEdit) part = FirstPart(Bytes(text));
}

std::string_view Control::ShownText() const {
  if (kind != ControlKind::kMultiLineEdit) return Bytes(text);
  return Bytes(text).substr(part.begin, part.end - part.begin);
}

void Control::ReplaceShownText(std::string_view bytes) {
  const std::string_view old = Bytes(text);
  std::string whole(bytes);
  if (kind == ControlKind::kMultiLineEdit) {
    whole.reserve(old.size() + bytes.size());
    whole.insert(0, old.substr(0, part.begin)).append(old.substr(part.end));
    part = EditedPart(part, ShownText(), bytes);
  }
  text.Empty();  // so that there are never three copies of a long text
  text = CString(whole.data(), static_cast<int>(whole.size()));
}

DialogModel::DialogModel(const DialogTemplate& dialog_template) : title_(dialog_template.title) {
  controls_.reserve(dialog_template.controls.size());
  for (const ControlTemplate& source : dialog_template.controls) {
    controls_.push_back(MakeControl(source));
  }
  layout_.number = dialog_template.number;
  layout_.placement = dialog_template.placement;
  layout_.x = dialog_template.x;
  layout_.y = dialog_template.y;
  layout_.width = dialog_template.width;
  layout_.height = dialog_template.height;
}

int DialogModel::IndexOf(int id) const {
  if (id == kNoControlId) return -1;
  for (int index = 0; index < Count(); ++index) {
    if (At(index).id == id) return index;
  }
  return -1;
}

Control& DialogModel::Change(int index) {
  changed_.insert(index);
  return controls_[static_cast<std::size_t>(index)];
}

std::pair<int, int> DialogModel::RadioGroup(int index) const {
  auto is_radio = [this](int i) {
    return i >= 0 && i < Count() && At(i).kind == ControlKind::kRadioButton;
  };
  auto starts = [this](int i) { return (At(i).flags & kGroupStart) != 0; };
  int first = index;
  while (!starts(first) && is_radio(first - 1)) --first;
  int last = index;
  while (is_radio(last + 1) && !starts(last + 1)) ++last;
  return {first, last};
}

void DialogModel::SetTitle(const char* title) {
  title_ = title;
  layout_changed_ = true;
}

void DialogModel::MoveTo(int x, int y) {
  layout_.placement = Placement::kAtPixel;
  layout_.x = x;
  layout_.y = y;
  layout_changed_ = true;
}

std::vector<int> DialogModel::TakeChanged() {
  std::vector<int> changed(changed_.begin(), changed_.end());
  changed_.clear();
  return changed;
}

bool DialogModel::TakeLayoutChanged() { return std::exchange(layout_changed_, false); }

ControlView ViewOf(const Control& control) {
  ControlView view;
  view.kind = control.kind;
  view.id = control.id;
  view.place = control.place;
  view.visible = control.visible;
  view.enabled = control.enabled;
  view.shows_only = (control.flags & kShowsOnly) != 0;
  view.starts_group = (control.flags & kGroupStart) != 0;
  view.is_default = (control.flags & kDefaultButton) != 0;
  view.right_aligned = (control.flags & kRightAligned) != 0;
  view.tall_scroll_bar = (control.flags & kTallScrollBar) != 0;
  view.takes_file = (control.flags & kTakesFile) != 0;
  view.grows = (control.flags & kGrows) != 0;
  view.checked = control.checked;
  view.text = ToUtf8(control.ShownText());
  view.description = ToUtf8(control.description);
  view.part = control.part.lines;
  for (std::size_t i = 0; i < control.column_titles.size(); ++i) {
    view.columns.push_back(
        {ToUtf8(control.column_titles[i].operator const char*()), control.column_widths[i]});
  }
  for (const std::vector<CString>& row : control.rows) {
    std::vector<std::string>& shown = view.rows.emplace_back();
    for (const CString& cell : row) shown.push_back(ToUtf8(cell.operator const char*()));
  }
  view.selection = control.selection;
  view.swatch = {control.swatch.colour, control.swatch.frame, ToUtf8(Bytes(control.swatch.note))};
  return view;
}

}  // namespace orreryui
