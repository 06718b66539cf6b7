// The state of a dialog's controls: what each shows, holds and allows. The model knows no rule of
// behaviour; ControlRun applies the user's gestures to it, CDialog the operations of the handlers.
// It remembers which controls changed until somebody collects them for the screen.
#ifndef ORRERYUI_PLATFORM_DIALOGS_DIALOG_MODEL_H_
#define ORRERYUI_PLATFORM_DIALOGS_DIALOG_MODEL_H_

#include <orreryui/cstring.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/dialogs/dialog_template.h"
#include "platform/dialogs/text_part.h"

namespace orreryui {

// What a swatch shows. Colours are 0x00BBGGRR.
struct Swatch {
  std::optional<std::uint32_t> colour;
  std::optional<std::uint32_t> frame;
  CString note;  // what the colour stands for, if that isn't itself
};

// One control. Texts are in code page 932.
struct Control {
  ControlKind kind = ControlKind::kStatic;
  int id = kNoControlId;
  DialogRect place;
  unsigned flags = kPlain;
  bool visible = true;
  bool enabled = true;
  bool checked = false;
  CString text;
  const char* description = "";  // the template's
  ShownPart part;                // of a multi-line edit: what of its text is shown
  std::vector<CString> column_titles;
  std::vector<int> column_widths;          // in pixels of a screen at scale 1
  std::vector<std::vector<CString>> rows;  // a row is its columns; list kinds have one
  int selection = -1;
  Swatch swatch;

  bool TakesFocus() const;  // the user can work on it, were it not hidden or disabled
  bool IsButton() const;    // a click on it reaches a handler
  bool HasEditField() const;
  bool IsList() const;  // has rows that can be picked, a tab control included

  void SetText(CString new_text);
  // The text, or the part of it that is shown, and another one in its place.
  std::string_view ShownText() const;
  void ReplaceShownText(std::string_view bytes);
};

class DialogModel {
 public:
  explicit DialogModel(const DialogTemplate& dialog_template);

  // The index of the control with this number, or -1.
  int IndexOf(int id) const;
  int Count() const { return static_cast<int>(controls_.size()); }
  const Control& At(int index) const { return controls_[static_cast<std::size_t>(index)]; }

  // The control, to be changed: it counts as changed from now on.
  Control& Change(int index);

  // The radio group that the button at `index` belongs to, as the range [first, last].
  std::pair<int, int> RadioGroup(int index) const;

  const DialogLayout& Layout() const { return layout_; }
  const CString& Title() const { return title_; }
  void SetTitle(const char* title);
  void MoveTo(int x, int y);                // in pixels of the screen
  void Touch() { layout_changed_ = true; }  // the focus, which the run keeps, has moved

  // The indices of the controls that changed since the last call, in ascending order.
  std::vector<int> TakeChanged();
  bool TakeLayoutChanged();

 private:
  std::vector<Control> controls_;
  DialogLayout layout_;  // its title and focus stay unset: they are kept apart
  CString title_;
  std::set<int> changed_;
  bool layout_changed_ = false;
};

// The control as a front end is to draw it.
ControlView ViewOf(const Control& control);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_DIALOG_MODEL_H_
