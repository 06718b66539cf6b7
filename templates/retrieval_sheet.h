// Template 170: the sheet on which a retrieval is set up.
#ifndef ORRERYUI_TEMPLATES_RETRIEVAL_SHEET_H_
#define ORRERYUI_TEMPLATES_RETRIEVAL_SHEET_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::retrieval_sheet {

inline constexpr int kTabs = 1149;
inline constexpr int kDisplayOnly = 1152;
inline constexpr int kSave = 1153;

// The text of IDOK on the pages of conditions.
inline constexpr const char* kRetrieveLabel = "検索"_sj;

inline constexpr const char* kTabCaptions[] = {"地名"_sj, "公共施設"_sj, "表示方法"_sj};

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kTab, kTabs, "", {7, 7, 268, 162}, kPlain, kTabCaptions},
    {ControlKind::kGroupBox, kNoControlId, "検索される地点"_sj, {7, 175, 268, 29}},
    {ControlKind::kRadioButton, kDisplayOnly, "表示のみ"_sj, {17, 188, 80, 10}, kGroupStart},
    {ControlKind::kRadioButton, kSave, "表示･保存"_sj, {105, 188, 80, 10}},
    {ControlKind::kPushButton, IDOK, kRetrieveLabel, {153, 212, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {217, 212, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    170, " 数値地図25000(地名・公共施設)"_sj, Placement::kOnPointer, 0, 0, 282, 235, kControls};

}  // namespace orreryui::retrieval_sheet

#endif  // ORRERYUI_TEMPLATES_RETRIEVAL_SHEET_H_
