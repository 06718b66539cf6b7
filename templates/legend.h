// Template 158: the legend of the elevations. The highest band stands at the top. The button, the
// only control that does something, comes first.
#ifndef ORRERYUI_TEMPLATES_LEGEND_H_
#define ORRERYUI_TEMPLATES_LEGEND_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::legend {

// Swatches C1 to C11: the sea, the bands of the land from the lowest up, the lakes.
inline constexpr int kSwatches[] = {1109, 1100, 1101, 1102, 1103, 1104,
                                    1105, 1106, 1107, 1108, 1110};
inline constexpr int kName = 1121;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kPushButton, IDOK, "OK", {35, 193, 50, 16}, kDefaultButton},
    {ControlKind::kStatic, kNoControlId, "配色"_sj, {12, 10, 18, 8}},
    {ControlKind::kStatic, kName, "", {34, 5, 74, 18}},  // room for two lines
    {ControlKind::kStatic, kNoControlId, "標高  3,000m～"_sj, {12, 30, 60, 8}},
    {ControlKind::kSwatch, kSwatches[9], "C10", {82, 28, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "標高  <3,000m"_sj, {12, 44, 60, 8}},
    {ControlKind::kSwatch, kSwatches[8], "C9", {82, 42, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "標高  <2,500m"_sj, {12, 58, 60, 8}},
    {ControlKind::kSwatch, kSwatches[7], "C8", {82, 56, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "標高  <2,000m"_sj, {12, 72, 60, 8}},
    {ControlKind::kSwatch, kSwatches[6], "C7", {82, 70, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "標高  <1,500m"_sj, {12, 86, 60, 8}},
    {ControlKind::kSwatch, kSwatches[5], "C6", {82, 84, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "標高  <1,000m"_sj, {12, 100, 60, 8}},
    {ControlKind::kSwatch, kSwatches[4], "C5", {82, 98, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "標高  <  500m"_sj, {12, 114, 60, 8}},
    {ControlKind::kSwatch, kSwatches[3], "C4", {82, 112, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "標高  <  200m"_sj, {12, 128, 60, 8}},
    {ControlKind::kSwatch, kSwatches[2], "C3", {82, 126, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "標高  <  100m"_sj, {12, 142, 60, 8}},
    {ControlKind::kSwatch, kSwatches[1], "C2", {82, 140, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "海域"_sj, {12, 156, 60, 8}},
    {ControlKind::kSwatch, kSwatches[0], "C1", {82, 154, 26, 12}, kShowsOnly},
    {ControlKind::kStatic, kNoControlId, "湖沼・貯水池"_sj, {12, 175, 60, 8}},
    {ControlKind::kSwatch, kSwatches[10], "C11", {82, 173, 26, 12}, kShowsOnly},
};

inline constexpr DialogTemplate kTemplate = {
    158, "  凡例（標高の区分)"_sj, Placement::kAtPosition, 440, 50, 120, 218, kControls};

}  // namespace orreryui::legend

#endif  // ORRERYUI_TEMPLATES_LEGEND_H_
