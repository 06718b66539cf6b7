// Template 142: a slide show of the registered points.
#ifndef ORRERYUI_TEMPLATES_SLIDE_H_
#define ORRERYUI_TEMPLATES_SLIDE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::slide {

inline constexpr int kText = 136;
inline constexpr int kPicture = 137;
inline constexpr int kBoth = 138;
inline constexpr int kAutomatic = 1016;
inline constexpr int kManual = 1017;
inline constexpr int kInterval = 101;
inline constexpr int kLonger = 103;
inline constexpr int kShorter = 109;
inline constexpr int kRemaining = 1018;
inline constexpr int kMemo = 214;
inline constexpr int kWithoutJpeg = 1052;
inline constexpr int kPositionMap = 215;
inline constexpr int kLarge = 1025;
inline constexpr int kSmall = 1026;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kGroupBox, kNoControlId, "表示する種類"_sj, {8, 6, 174, 60}},
    {ControlKind::kRadioButton, kText, "ﾃｷｽﾄ"_sj, {18, 20, 48, 10}, kGroupStart},
    {ControlKind::kRadioButton, kPicture, "画像"_sj, {72, 20, 48, 10}},
    {ControlKind::kRadioButton, kBoth, "両方"_sj, {126, 20, 48, 10}},
    {ControlKind::kCheckBox, kMemo, "画像と共にメモを表示する"_sj, {18, 36, 156, 10}},
    {ControlKind::kCheckBox, kWithoutJpeg, "JPGの画像を除く"_sj, {18, 50, 156, 10}},
    {ControlKind::kGroupBox, kNoControlId, "方法"_sj, {8, 73, 174, 66}},
    {ControlKind::kRadioButton, kAutomatic, "自動"_sj, {18, 87, 48, 10}, kGroupStart},
    {ControlKind::kRadioButton, kManual, "手動"_sj, {72, 87, 48, 10}},
    {ControlKind::kStatic, kNoControlId, "表示間隔   (秒)"_sj, {18, 106, 62, 8}},
    {ControlKind::kEdit, kInterval, "", {82, 103, 44, 14}},
    {ControlKind::kPushButton, kLonger, "△"_sj, {130, 102, 20, 16}, kPlain, {}, "間隔を長く"_sj},
    {ControlKind::kPushButton, kShorter, "▽"_sj, {152, 102, 20, 16}, kPlain, {}, "間隔を短く"_sj},
    {ControlKind::kCheckBox, kRemaining, "残り秒数を表示"_sj, {18, 123, 156, 10}},
    {ControlKind::kGroupBox, kNoControlId, "登録地点位置図"_sj, {8, 146, 174, 46}},
    {ControlKind::kCheckBox, kPositionMap, "表示する"_sj, {18, 160, 156, 10}},
    {ControlKind::kStatic, kNoControlId, "大きさ"_sj, {18, 176, 36, 8}},
    {ControlKind::kRadioButton, kLarge, "大"_sj, {72, 175, 48, 10}, kGroupStart},
    {ControlKind::kRadioButton, kSmall, "小"_sj, {126, 175, 48, 10}},
    {ControlKind::kPushButton, IDOK, "OK", {58, 200, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {124, 200, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    142, " スライドショー"_sj, Placement::kCentred, 0, 0, 190, 224, kControls};

}  // namespace orreryui::slide

#endif  // ORRERYUI_TEMPLATES_SLIDE_H_
