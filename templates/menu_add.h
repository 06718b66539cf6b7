// Template 178: an entry of a menu.
#ifndef ORRERYUI_TEMPLATES_MENU_ADD_H_
#define ORRERYUI_TEMPLATES_MENU_ADD_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::menu_add {

inline constexpr int kTitle = 1022;
inline constexpr int kFileLabel = 1026;
inline constexpr int kFile = 1023;
inline constexpr int kChooseFile = 1025;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kNoControlId, "ﾀｲﾄﾙ"_sj, {10, 13, 44, 8}},
    {ControlKind::kMultiLineEdit, kTitle, "", {56, 10, 170, 15}},
    {ControlKind::kStatic, kFileLabel, "ﾃｷｽﾄ ﾌｧｲﾙ"_sj, {10, 33, 44, 8}},
    {ControlKind::kEdit, kFile, "", {56, 30, 170, 14}, kTakesFile},
    {ControlKind::kPushButton, kChooseFile, "ﾌｧｲﾙ"_sj, {232, 29, 44, 16}},
    {ControlKind::kStatic,
     kNoControlId,
     "仕切り線は、ﾀｲﾄﾙ欄に半角\"－\"記号で６文字以上繰り返してください。"_sj,
     {10, 53, 266, 8}},
    {ControlKind::kPushButton, IDOK, "追加"_sj, {152, 69, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {218, 69, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    178, "メニューに追加"_sj, Placement::kAtPosition, 40, 0, 286, 95, kControls};

}  // namespace orreryui::menu_add

#endif  // ORRERYUI_TEMPLATES_MENU_ADD_H_
