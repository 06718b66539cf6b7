// Template 135: a slide show of the host's menus.
#ifndef ORRERYUI_TEMPLATES_MENU_SLIDE_H_
#define ORRERYUI_TEMPLATES_MENU_SLIDE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::menu_slide {

inline constexpr int kAll = 1352;
inline constexpr int kFirstMenu = 1027;   // the eight menus follow one another,
inline constexpr int kFirstCount = 1035;  // and so do the counts of their files
inline constexpr int kDisplayGroup = 1060;
inline constexpr int kAutomatic = 1353;
inline constexpr int kManual = 1354;
inline constexpr int kInterval = 1355;
inline constexpr int kLonger = 1356;
inline constexpr int kShorter = 1357;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kCheckBox, kAll, "すべて"_sj, {12, 10, 76, 10}},
    {ControlKind::kStatic, kNoControlId, "(登録ﾌｧｲﾙ)"_sj, {92, 11, 48, 8}},
    {ControlKind::kCheckBox, kFirstMenu, "〆テキスト1"_sj, {12, 26, 76, 10}},
    {ControlKind::kStatic, kFirstCount, "", {92, 27, 40, 8}, kRightAligned},
    {ControlKind::kCheckBox, kFirstMenu + 1, "〆テキスト2"_sj, {12, 40, 76, 10}},
    {ControlKind::kStatic, kFirstCount + 1, "", {92, 41, 40, 8}, kRightAligned},
    {ControlKind::kCheckBox, kFirstMenu + 2, "〆テキスト3"_sj, {12, 54, 76, 10}},
    {ControlKind::kStatic, kFirstCount + 2, "", {92, 55, 40, 8}, kRightAligned},
    {ControlKind::kCheckBox, kFirstMenu + 3, "〆テキスト4"_sj, {12, 68, 76, 10}},
    {ControlKind::kStatic, kFirstCount + 3, "", {92, 69, 40, 8}, kRightAligned},
    {ControlKind::kCheckBox, kFirstMenu + 4, "〆テキスト5"_sj, {12, 82, 76, 10}},
    {ControlKind::kStatic, kFirstCount + 4, "", {92, 83, 40, 8}, kRightAligned},
    {ControlKind::kCheckBox, kFirstMenu + 5, "ζ画像1"_sj, {12, 96, 76, 10}},
    {ControlKind::kStatic, kFirstCount + 5, "", {92, 97, 40, 8}, kRightAligned},
    {ControlKind::kCheckBox, kFirstMenu + 6, "ζ画像2"_sj, {12, 110, 76, 10}},
    {ControlKind::kStatic, kFirstCount + 6, "", {92, 111, 40, 8}, kRightAligned},
    {ControlKind::kCheckBox, kFirstMenu + 7, "ζ画像3"_sj, {12, 124, 76, 10}},
    {ControlKind::kStatic, kFirstCount + 7, "", {92, 125, 40, 8}, kRightAligned},
    {ControlKind::kGroupBox, kDisplayGroup, "表示方法"_sj, {8, 141, 142, 50}},
    {ControlKind::kRadioButton, kAutomatic, "自動"_sj, {18, 155, 50, 10}, kGroupStart},
    {ControlKind::kRadioButton, kManual, "手動"_sj, {74, 155, 50, 10}},
    {ControlKind::kStatic, kNoControlId, "間隔(秒)"_sj, {18, 173, 34, 8}},
    {ControlKind::kEdit, kInterval, "", {54, 170, 44, 14}},
    {ControlKind::kPushButton, kLonger, "＋"_sj, {102, 169, 20, 16}, kPlain, {}, "間隔を長く"_sj},
    {ControlKind::kPushButton, kShorter, "－"_sj, {124, 169, 20, 16}, kPlain, {}, "間隔を短く"_sj},
    {ControlKind::kPushButton, IDOK, "OK", {26, 198, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {92, 198, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    135, " スライドショー"_sj, Placement::kCentred, 0, 0, 158, 222, kControls};

}  // namespace orreryui::menu_slide

#endif  // ORRERYUI_TEMPLATES_MENU_SLIDE_H_
