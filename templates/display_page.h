// Template 132: the page of the retrieval sheet for the display of what is found.
#ifndef ORRERYUI_TEMPLATES_DISPLAY_PAGE_H_
#define ORRERYUI_TEMPLATES_DISPLAY_PAGE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::display_page {

inline constexpr int kNowhere = 1028;
inline constexpr int kDetailAndWideMap = 1029;
inline constexpr int kDetailMap = 1030;
inline constexpr int kEnlargedMap = 1031;
inline constexpr int kLarge = 1018;
inline constexpr int kMedium = 1019;
inline constexpr int kSmall = 1020;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kGroupBox, kNoControlId, "地名"_sj, {8, 8, 248, 78}},
    {ControlKind::kRadioButton, kNowhere, "非表示"_sj, {18, 23, 150, 10}, kGroupStart},
    {ControlKind::kRadioButton, kDetailAndWideMap, "１×１図と広域地図で表示"_sj, {18, 38, 150, 10}},
    {ControlKind::kRadioButton, kDetailMap, "１×１図のみで表示"_sj, {18, 53, 150, 10}},
    {ControlKind::kRadioButton, kEnlargedMap, "拡大地図のみで表示"_sj, {18, 68, 150, 10}},
    {ControlKind::kGroupBox, kNoControlId, "文字の大きさ"_sj, {8, 94, 248, 33}},
    {ControlKind::kRadioButton, kLarge, "大"_sj, {18, 109, 40, 10}, kGroupStart},
    {ControlKind::kRadioButton, kMedium, "中"_sj, {66, 109, 40, 10}},
    {ControlKind::kRadioButton, kSmall, "小"_sj, {114, 109, 40, 10}},
};

inline constexpr DialogTemplate kTemplate = {132, "",       Placement::kCentred, 0, 0, 264,
                                             145, kControls};

}  // namespace orreryui::display_page

#endif  // ORRERYUI_TEMPLATES_DISPLAY_PAGE_H_
