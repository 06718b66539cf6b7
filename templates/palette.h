// Template 177: the palette editor. The highest elevation stands at the top.
#ifndef ORRERYUI_TEMPLATES_PALETTE_H_
#define ORRERYUI_TEMPLATES_PALETTE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::palette {

// Swatches C1 to C13: the sea; 100 m to 4,000 m; the lakes; 0 m; the map's background.
inline constexpr int kSwatches[] = {1017, 1018, 1019, 1020, 1021, 1022, 1023,
                                    1024, 1025, 1026, 1030, 1118, 1013};
inline constexpr int kNames = 1029;
inline constexpr int kDelete = 1032;
inline constexpr int kEdit = 1111;  // edits, updates or registers, as its text says
inline constexpr int kCheck = 1122;
inline constexpr int kNote = 1119;

// The row of kNames, and the text of kEdit, for a palette that isn't registered yet.
inline constexpr const char* kNewEntry = "新規登録"_sj;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kGroupBox, kNoControlId, " 配色の名称"_sj, {10, 8, 146, 178}},
    {ControlKind::kSimpleComboBox, kNames, "", {18, 24, 130, 136}},
    {ControlKind::kPushButton, kEdit, "編集"_sj, {18, 164, 63, 16}},
    {ControlKind::kPushButton, kDelete, "削除"_sj, {85, 164, 63, 16}},
    {ControlKind::kStatic, kNoControlId, "標高 4,000m"_sj, {168, 14, 52, 8}},
    {ControlKind::kSwatch, kSwatches[9], "C10", {226, 12, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "標高 3,000m"_sj, {168, 28, 52, 8}},
    {ControlKind::kSwatch, kSwatches[8], "C9", {226, 26, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "標高 2,500m"_sj, {168, 42, 52, 8}},
    {ControlKind::kSwatch, kSwatches[7], "C8", {226, 40, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "標高 2,000m"_sj, {168, 56, 52, 8}},
    {ControlKind::kSwatch, kSwatches[6], "C7", {226, 54, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "標高 1,500m"_sj, {168, 70, 52, 8}},
    {ControlKind::kSwatch, kSwatches[5], "C6", {226, 68, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "標高 1,000m"_sj, {168, 84, 52, 8}},
    {ControlKind::kSwatch, kSwatches[4], "C5", {226, 82, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "標高   500m"_sj, {168, 98, 52, 8}},
    {ControlKind::kSwatch, kSwatches[3], "C4", {226, 96, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "標高   200m"_sj, {168, 112, 52, 8}},
    {ControlKind::kSwatch, kSwatches[2], "C3", {226, 110, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "標高   100m"_sj, {168, 126, 52, 8}},
    {ControlKind::kSwatch, kSwatches[1], "C2", {226, 124, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "標高      0m"_sj, {168, 140, 52, 8}},
    {ControlKind::kSwatch, kSwatches[11], "C12", {226, 138, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "海域"_sj, {168, 154, 52, 8}},
    {ControlKind::kSwatch, kSwatches[0], "C1", {226, 152, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "湖沼など"_sj, {168, 174, 52, 8}},
    {ControlKind::kSwatch, kSwatches[10], "C11", {226, 172, 26, 12}},
    {ControlKind::kStatic, kNoControlId, "地図の背景色"_sj, {168, 188, 52, 8}},
    {ControlKind::kSwatch, kSwatches[12], "C13", {226, 186, 26, 12}},
    {ControlKind::kCheckBox, kCheck, "配色ﾁｪｯｸ"_sj, {10, 193, 60, 10}},
    {ControlKind::kStatic, kNote, "", {10, 210, 242, 8}},
    {ControlKind::kPushButton, IDOK, "OK", {130, 226, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {194, 226, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {177, "  配色の設定"_sj, Placement::kCentred, 0, 0, 262,
                                             252, kControls};

}  // namespace orreryui::palette

#endif  // ORRERYUI_TEMPLATES_PALETTE_H_
