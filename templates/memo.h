// Template 133: a memo, or the first lines of a text file.
#ifndef ORRERYUI_TEMPLATES_MEMO_H_
#define ORRERYUI_TEMPLATES_MEMO_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::memo {

inline constexpr int kText = 101;
inline constexpr int kPath = 102;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kPath, "", {7, 6, 286, 17}},
    {ControlKind::kMultiLineEdit, kText, "", {7, 27, 230, 74}, kTallScrollBar},
    {ControlKind::kPushButton, IDOK, "OK", {243, 27, 50, 16}, kDefaultButton},
};

inline constexpr DialogTemplate kTemplate = {
    133, "    メモ（連絡先／画像説明）"_sj, Placement::kAtPosition, 5, 267, 300, 108, kControls};

}  // namespace orreryui::memo

#endif  // ORRERYUI_TEMPLATES_MEMO_H_
