// Template 156: new names for stored maps, and their deletion.
#ifndef ORRERYUI_TEMPLATES_ROUTE_UPDATE_H_
#define ORRERYUI_TEMPLATES_ROUTE_UPDATE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::route_update {

inline constexpr int kCount = 1077;
inline constexpr int kMaps = 1078;
inline constexpr int kName = 1080;
inline constexpr int kRename = 1081;
inline constexpr int kDelete = 1079;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kNoControlId, "現在"_sj, {138, 10, 24, 8}},
    {ControlKind::kStatic, kCount, "", {164, 10, 40, 8}},
    {ControlKind::kStatic, kNoControlId, "登録済み一覧"_sj, {10, 10, 80, 8}},
    {ControlKind::kListBox, kMaps, "", {10, 21, 194, 110}},
    {ControlKind::kEdit, kName, "", {10, 137, 194, 14}, kPlain, {}, "新しい名称"_sj},
    {ControlKind::kPushButton, kRename, "名称変更"_sj, {68, 157, 64, 16}},
    {ControlKind::kPushButton, kDelete, "ｶｰｿﾙ行削除"_sj, {140, 157, 64, 16}},
    {ControlKind::kPushButton, IDOK, "OK", {68, 185, 64, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {140, 185, 64, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    156, "      ルートマップの更新"_sj, Placement::kAtPosition, 20, 60, 214, 208, kControls};

}  // namespace orreryui::route_update

#endif  // ORRERYUI_TEMPLATES_ROUTE_UPDATE_H_
