// Template 157: a stored map and its points.
#ifndef ORRERYUI_TEMPLATES_ROUTE_SELECT_H_
#define ORRERYUI_TEMPLATES_ROUTE_SELECT_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::route_select {

inline constexpr int kMapPosition = 1092;
inline constexpr int kMapsLabel = 1093;
inline constexpr int kMaps = 1089;
inline constexpr int kUpdate = 1091;
inline constexpr int kDataGroup = 1094;
inline constexpr int kPosition = 131;
inline constexpr int kPoints = 1086;
inline constexpr int kEdit = 1090;
inline constexpr int kPlace = 1080;
inline constexpr int kLatitude = 1081;
inline constexpr int kLongitude = 1082;
inline constexpr int kItem = 1083;
inline constexpr int kTextFile = 1084;
inline constexpr int kPictureFile = 1085;
inline constexpr int kDisplayGroup = 1122;
inline constexpr int kAutomatic = 1087;
inline constexpr int kManual = 1088;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kMapPosition, "", {66, 12, 50, 8}},
    {ControlKind::kStatic, kNoControlId, "(Max=512)", {120, 12, 50, 8}},
    {ControlKind::kStatic, kMapsLabel, "ﾙｰﾄﾏｯﾌﾟ"_sj, {10, 12, 52, 8}},
    {ControlKind::kSimpleComboBox, kMaps, "", {10, 27, 250, 62}},
    {ControlKind::kPushButton, kUpdate, "更新"_sj, {202, 7, 58, 16}},
    {ControlKind::kGroupBox, kDataGroup, "ﾙｰﾄﾏｯﾌﾟのデータ"_sj, {7, 93, 256, 160}},
    {ControlKind::kStatic, kPosition, "", {48, 110, 60, 8}},
    {ControlKind::kStatic, kNoControlId, "リスト"_sj, {16, 110, 30, 8}},
    {ControlKind::kListBox, kPoints, "", {16, 124, 239, 46}},
    {ControlKind::kPushButton, kEdit, "ﾃﾞｰﾀ編集"_sj, {191, 105, 64, 16}},
    {ControlKind::kStatic, kNoControlId, "地名"_sj, {16, 177, 44, 8}},
    {ControlKind::kEdit, kPlace, "", {62, 174, 193, 14}},
    {ControlKind::kStatic, kLatitude, "", {62, 191, 60, 8}, kPlain, {}, "緯度"_sj},
    {ControlKind::kStatic, kLongitude, "", {126, 191, 60, 8}, kPlain, {}, "経度"_sj},
    {ControlKind::kStatic, kNoControlId, "項目"_sj, {16, 204, 44, 8}},
    {ControlKind::kEdit, kItem, "", {62, 201, 193, 14}},
    {ControlKind::kStatic, kNoControlId, "ﾃｷｽﾄ ﾌｧｲﾙ"_sj, {16, 220, 44, 8}},
    {ControlKind::kEdit, kTextFile, "", {62, 217, 193, 14}, kTakesFile},
    {ControlKind::kStatic, kNoControlId, "画像 ﾌｧｲﾙ"_sj, {16, 236, 44, 8}},
    {ControlKind::kEdit, kPictureFile, "", {62, 233, 193, 14}, kTakesFile},
    {ControlKind::kGroupBox, kDisplayGroup, "ﾙｰﾄﾏｯﾌﾟの表示方法"_sj, {7, 257, 122, 30}},
    {ControlKind::kRadioButton, kAutomatic, "自動"_sj, {17, 271, 50, 10}, kGroupStart},
    {ControlKind::kRadioButton, kManual, "手動"_sj, {71, 271, 50, 10}},
    {ControlKind::kPushButton, IDOK, "OK", {141, 268, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {205, 268, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    157, "        ルートマップの選択"_sj, Placement::kAtPosition, 350, 60, 270, 294, kControls};

}  // namespace orreryui::route_select

#endif  // ORRERYUI_TEMPLATES_ROUTE_SELECT_H_
