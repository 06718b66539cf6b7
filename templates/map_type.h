// Template 159: the kind of the map and its colouring.
#ifndef ORRERYUI_TEMPLATES_MAP_TYPE_H_
#define ORRERYUI_TEMPLATES_MAP_TYPE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::map_type {

inline constexpr int kTopographic = 1004;
inline constexpr int kArchipelago = 1005;
inline constexpr int kPrefectures = 1006;
inline constexpr int kBlank = 1112;
inline constexpr int kTint = 1113;
inline constexpr int kPalette = 1116;
inline constexpr int kMethod = 1117;
inline constexpr int kCoastline = 1014;
inline constexpr int kPrefProjection = 1034;
inline constexpr int kJapanProjection = 1035;

inline constexpr const char* kMethods[] = {"段彩(レリーフ)"_sj,     "段彩(ｸﾞﾗﾃﾞｰｼｮﾝ)"_sj,
                                           "段彩(高度 50m間隔)"_sj, "段彩(高度100m間隔)"_sj,
                                           "段彩(高度200m間隔)"_sj, "段彩(高度250m間隔)"_sj,
                                           "段彩(高度500m間隔)"_sj};

inline constexpr const char* kCoastlines[] = {
    "空"_sj,       "紫"_sj,       "青"_sj,       "深緑"_sj,       "緑"_sj,       "黄"_sj,
    "橙"_sj,       "桃"_sj,       "赤"_sj,       "茶"_sj,         "黒"_sj,       "灰"_sj,
    "空(太線)"_sj, "紫(太線)"_sj, "青(太線)"_sj, "深緑(太線)"_sj, "緑(太線)"_sj, "赤(太線)"_sj,
    "黒(太線)"_sj, "灰(太線)"_sj, "非表示"_sj};

inline constexpr const char* kPrefProjections[] = {"ｻﾝｿﾝ図法"_sj, "正距円筒図法"_sj};
inline constexpr const char* kJapanProjections[] = {"ｻﾝｿﾝ図法"_sj, "ｱﾙﾍﾞﾙｽ正積円錐図法"_sj};

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kGroupBox, kNoControlId, "地図の種類"_sj, {8, 6, 212, 40}},
    {ControlKind::kRadioButton, kTopographic, "1/20万\n地勢図"_sj, {18, 21, 56, 18}, kGroupStart},
    {ControlKind::kRadioButton, kArchipelago, "日本列島"_sj, {82, 21, 56, 18}},
    {ControlKind::kRadioButton, kPrefectures, "都道府県別"_sj, {146, 21, 64, 18}},
    {ControlKind::kGroupBox, kNoControlId, "1/20万地勢図/都道府県別"_sj, {8, 53, 212, 93}},
    {ControlKind::kStatic, kNoControlId, "種別"_sj, {18, 71, 56, 8}},
    {ControlKind::kRadioButton, kBlank, "白地図"_sj, {82, 70, 56, 10}, kGroupStart},
    {ControlKind::kRadioButton, kTint, "段彩図"_sj, {146, 70, 56, 10}},
    {ControlKind::kStatic, kNoControlId, "配色"_sj, {18, 88, 56, 8}},
    {ControlKind::kComboBox, kPalette, "", {82, 85, 128, 14}},
    {ControlKind::kStatic, kNoControlId, "塗り分け方法"_sj, {18, 107, 56, 8}},
    {ControlKind::kComboBox, kMethod, "", {82, 104, 128, 14}, kPlain, kMethods},
    {ControlKind::kStatic, kNoControlId, "海岸線の色\n　（白地図）"_sj, {18, 121, 56, 18}},
    {ControlKind::kComboBox, kCoastline, "", {82, 123, 128, 14}, kPlain, kCoastlines},
    {ControlKind::kGroupBox, kNoControlId, "図法"_sj, {8, 153, 212, 59}},
    {ControlKind::kStatic, kNoControlId, "都道府県別"_sj, {18, 173, 56, 8}},
    {ControlKind::kComboBox, kPrefProjection, "", {82, 170, 128, 14}, kPlain, kPrefProjections},
    {ControlKind::kStatic, kNoControlId, "日本列島"_sj, {18, 192, 56, 8}},
    {ControlKind::kComboBox, kJapanProjection, "", {82, 189, 128, 14}, kPlain, kJapanProjections},
    {ControlKind::kPushButton, IDOK, "OK", {96, 221, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {162, 221, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    159, "  地図の種類と配色"_sj, Placement::kOnPointer, 0, 0, 228, 245, kControls};

}  // namespace orreryui::map_type

#endif  // ORRERYUI_TEMPLATES_MAP_TYPE_H_
