// Template 153: the name of a new map.
#ifndef ORRERYUI_TEMPLATES_ROUTE_REGIST_H_
#define ORRERYUI_TEMPLATES_ROUTE_REGIST_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::route_regist {

inline constexpr int kNameLabel = 1090;
inline constexpr int kName = 1065;
inline constexpr int kPoints = 1063;
inline constexpr int kCount = 1064;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kNameLabel, "ルート"_sj, {10, 13, 34, 8}},
    {ControlKind::kEdit, kName, "", {46, 10, 154, 14}},
    {ControlKind::kStatic, kCount, "", {36, 31, 60, 8}},
    {ControlKind::kStatic, kNoControlId, "ﾃﾞｰﾀ"_sj, {10, 31, 24, 8}},
    {ControlKind::kListBox, kPoints, "", {10, 42, 190, 100}},
    {ControlKind::kPushButton, IDOK, "登録"_sj, {78, 150, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {142, 150, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    153, "            ルート登録"_sj, Placement::kAtPosition, 40, 68, 210, 173, kControls};

}  // namespace orreryui::route_regist

#endif  // ORRERYUI_TEMPLATES_ROUTE_REGIST_H_
