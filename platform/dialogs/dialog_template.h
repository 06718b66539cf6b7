// Dialog templates: what a dialog consists of before anything has happened in it. A template is a
// constexpr table that lives as long as the library; its texts are in code page 932.
#ifndef ORRERYUI_PLATFORM_DIALOGS_DIALOG_TEMPLATE_H_
#define ORRERYUI_PLATFORM_DIALOGS_DIALOG_TEMPLATE_H_

#include <span>

#include "platform/front_end.h"

namespace orreryui {

// The buttons that every dialog understands, and the codes that they end it with.
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;

// Properties of a control, joined with |.
enum ControlFlags : unsigned {
  kPlain = 0,
  kDefaultButton = 1,  // Enter presses it
  kGroupStart = 2,     // the first radio button of a group, or push-like check box of a map
  kRightAligned = 4,
  kTallScrollBar = 8,  // a multi-line edit that always shows its vertical scroll bar
  kHidden = 16,
  kDisabled = 32,
  kShowsOnly = 64,   // a swatch that takes neither clicks nor the focus
  kGrows = 128,      // gets the room of a window that the user makes larger
  kTakesFile = 256,  // an edit of one line onto which a file can be dropped
};

struct ControlTemplate {
  ControlKind kind = ControlKind::kStatic;
  int id = kNoControlId;
  const char* text = "";
  DialogRect place;
  unsigned flags = kPlain;
  std::span<const char* const> items = {};  // the fixed rows of a list or combo box
  const char* description = "";             // see ControlView::description
};

struct DialogTemplate {
  int number = 0;
  const char* title = "";
  Placement placement = Placement::kCentred;
  int x = 0;  // in dialog units, for Placement::kAtPosition
  int y = 0;
  int width = 0;  // in dialog units
  int height = 0;
  std::span<const ControlTemplate> controls;  // in tab order
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_DIALOG_TEMPLATE_H_
