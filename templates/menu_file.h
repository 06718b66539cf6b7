// Template 141: the entries of the host's menus.
#ifndef ORRERYUI_TEMPLATES_MENU_FILE_H_
#define ORRERYUI_TEMPLATES_MENU_FILE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::menu_file {

inline constexpr int kMenu = 1141;
inline constexpr int kCount = 131;
inline constexpr int kEntries = 1021;
inline constexpr int kEditFile = 1019;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kNoControlId, "メニュー"_sj, {10, 13, 36, 8}},
    {ControlKind::kComboBox, kMenu, "", {48, 10, 80, 14}},
    {ControlKind::kStatic, kCount, "", {224, 33, 44, 8}, kRightAligned},
    {ControlKind::kStatic, kNoControlId, "登録済項目一覧"_sj, {10, 33, 80, 8}},
    {ControlKind::kReportList, kEntries, "", {10, 44, 258, 140}},
    {ControlKind::kStatic,
     kNoControlId,
     "登録・更新はﾀｲﾄﾙ欄をダブルクリック！"_sj,
     {10, 190, 258, 8}},
    {ControlKind::kPushButton, kEditFile, "編集"_sj, {10, 206, 58, 16}},
    {ControlKind::kPushButton, IDOK, "OK", {144, 206, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {210, 206, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    141,      "   テキストメニューに項目の登録・更新"_sj, Placement::kCentred, 0, 0, 278, 232,
    kControls};

}  // namespace orreryui::menu_file

#endif  // ORRERYUI_TEMPLATES_MENU_FILE_H_
