// Template 146: the range drawn with the mouse.
#ifndef ORRERYUI_TEMPLATES_RANGE_H_
#define ORRERYUI_TEMPLATES_RANGE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::range {

inline constexpr int kNorth = 1030;
inline constexpr int kWest = 1031;
inline constexpr int kSouth = 1032;
inline constexpr int kEast = 1033;
inline constexpr int kEnlarge = 103;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kNoControlId, "北西隅の座標"_sj, {14, 14, 60, 8}},
    {ControlKind::kStatic, kNorth, "34.5000", {84, 14, 40, 8}, kRightAligned, {}, "緯度"_sj},
    {ControlKind::kStatic, kWest, "135.0000", {130, 14, 40, 8}, kRightAligned, {}, "経度"_sj},
    {ControlKind::kStatic, kNoControlId, "南東隅の座標"_sj, {14, 30, 60, 8}},
    {ControlKind::kStatic, kSouth, "34.0000", {84, 30, 40, 8}, kRightAligned, {}, "緯度"_sj},
    {ControlKind::kStatic, kEast, "135.5000", {130, 30, 40, 8}, kRightAligned, {}, "経度"_sj},
    {ControlKind::kPushButton, kEnlarge, "拡大地図"_sj, {32, 54, 66, 16}},
    {ControlKind::kPushButton, IDCANCEL, "指定解除"_sj, {104, 54, 66, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    146, "マウスで指定した範囲"_sj, Placement::kCentred, 0, 0, 184, 80, kControls};

}  // namespace orreryui::range

#endif  // ORRERYUI_TEMPLATES_RANGE_H_
