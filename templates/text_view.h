// Template 152: the main text of a text file. The caption is set at the start.
#ifndef ORRERYUI_TEMPLATES_TEXT_VIEW_H_
#define ORRERYUI_TEMPLATES_TEXT_VIEW_H_

#include "platform/dialogs/dialog_template.h"

namespace orreryui::text_view {

inline constexpr int kText = 1050;
inline constexpr int kPath = 1051;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kPath, "Static", {10, 7, 400, 17}},
    {ControlKind::kMultiLineEdit, kText, "", {10, 28, 400, 211}, kTallScrollBar | kGrows},
    {ControlKind::kPushButton, IDOK, "OK", {352, 245, 58, 16}, kDefaultButton},
};

inline constexpr DialogTemplate kTemplate = {152, "",       Placement::kCentred, 0, 0, 420,
                                             270, kControls};

}  // namespace orreryui::text_view

#endif  // ORRERYUI_TEMPLATES_TEXT_VIEW_H_
