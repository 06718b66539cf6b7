// Template 171: the page of the retrieval sheet for place names.
#ifndef ORRERYUI_TEMPLATES_NAME_PAGE_H_
#define ORRERYUI_TEMPLATES_NAME_PAGE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::name_page {

inline constexpr int kMesh = 1007;
inline constexpr int kAdmin = 1005;
inline constexpr int kLarge = 1001;
inline constexpr int kMiddle = 1002;
inline constexpr int kSmall = 1003;
inline constexpr int kWord = 1004;
inline constexpr int kLargeCode = 1010;
inline constexpr int kMiddleCode = 1011;
inline constexpr int kSmallCode = 1012;
inline constexpr int kClear = 1032;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kNoControlId, "標準地域ﾒｯｼｭｺｰﾄﾞ"_sj, {8, 11, 78, 8}},
    {ControlKind::kComboBox, kMesh, "", {90, 8, 150, 14}},
    {ControlKind::kStatic, kNoControlId, "行政ｺｰﾄﾞ"_sj, {8, 30, 78, 8}},
    {ControlKind::kComboBox, kAdmin, "", {90, 27, 150, 14}},
    {ControlKind::kStatic, kNoControlId, "大分類"_sj, {8, 49, 78, 8}},
    {ControlKind::kComboBox, kLarge, "", {90, 46, 150, 14}},
    {ControlKind::kStatic, kLargeCode, "", {244, 49, 14, 8}},
    {ControlKind::kStatic, kNoControlId, "中分類"_sj, {8, 68, 78, 8}},
    {ControlKind::kComboBox, kMiddle, "", {90, 65, 150, 14}},
    {ControlKind::kStatic, kMiddleCode, "", {244, 68, 14, 8}},
    {ControlKind::kStatic, kNoControlId, "小分類"_sj, {8, 87, 78, 8}},
    {ControlKind::kComboBox, kSmall, "", {90, 84, 150, 14}},
    {ControlKind::kStatic, kSmallCode, "", {244, 87, 14, 8}},
    {ControlKind::kStatic, kNoControlId, "次の文字を含む地点"_sj, {8, 106, 78, 8}},
    {ControlKind::kEdit, kWord, "", {90, 103, 150, 14}},
    {ControlKind::kPushButton, kClear, "条件ｸﾘｱｰ"_sj, {182, 123, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {171, "",       Placement::kCentred, 0, 0, 264,
                                             145, kControls};

}  // namespace orreryui::name_page

#endif  // ORRERYUI_TEMPLATES_NAME_PAGE_H_
