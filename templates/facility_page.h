// Template 174: the page of the retrieval sheet for public facilities.
#ifndef ORRERYUI_TEMPLATES_FACILITY_PAGE_H_
#define ORRERYUI_TEMPLATES_FACILITY_PAGE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::facility_page {

inline constexpr int kMesh = 1019;
inline constexpr int kAdmin = 1020;
inline constexpr int kLarge = 1017;
inline constexpr int kSmall = 1018;
inline constexpr int kWord = 1022;
inline constexpr int kLargeCode = 1015;
inline constexpr int kSmallCode = 1016;
inline constexpr int kClear = 1021;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kNoControlId, "標準地域ﾒｯｼｭｺｰﾄﾞ"_sj, {8, 11, 78, 8}},
    {ControlKind::kComboBox, kMesh, "", {90, 8, 150, 14}},
    {ControlKind::kStatic, kNoControlId, "行政ｺｰﾄﾞ"_sj, {8, 30, 78, 8}},
    {ControlKind::kComboBox, kAdmin, "", {90, 27, 150, 14}},
    {ControlKind::kStatic, kNoControlId, "大分類"_sj, {8, 49, 78, 8}},
    {ControlKind::kComboBox, kLarge, "", {90, 46, 150, 14}},
    {ControlKind::kStatic, kLargeCode, "", {244, 49, 14, 8}},
    {ControlKind::kStatic, kNoControlId, "小分類"_sj, {8, 68, 78, 8}},
    {ControlKind::kComboBox, kSmall, "", {90, 65, 150, 14}},
    {ControlKind::kStatic, kSmallCode, "", {244, 68, 14, 8}},
    {ControlKind::kStatic, kNoControlId, "次の文字を含む施設"_sj, {8, 87, 78, 8}},
    {ControlKind::kEdit, kWord, "", {90, 84, 150, 14}},
    {ControlKind::kPushButton, kClear, "条件ｸﾘｱｰ"_sj, {182, 123, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {174, "",       Placement::kCentred, 0, 0, 264,
                                             145, kControls};

}  // namespace orreryui::facility_page

#endif  // ORRERYUI_TEMPLATES_FACILITY_PAGE_H_
