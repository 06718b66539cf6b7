// Template 149: the points of an album, of a stored map or of a list of the host's.
#ifndef ORRERYUI_TEMPLATES_ALBUM_FILES_H_
#define ORRERYUI_TEMPLATES_ALBUM_FILES_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::album_files {

inline constexpr int kKindLabel = 1061;
inline constexpr int kCaption1 = 1034;
inline constexpr int kCaption2 = 1035;
inline constexpr int kPosition = 131;
inline constexpr int kPoints = 128;
inline constexpr int kPlace = 106;
inline constexpr int kItem = 104;
inline constexpr int kTextFile = 105;
inline constexpr int kPictureFile = 101;
inline constexpr int kLatitude = 107;
inline constexpr int kLongitude = 108;
inline constexpr int kDisplayGroup = 1060;
inline constexpr int kAutomatic = 136;
inline constexpr int kManual = 137;
inline constexpr int kRegister = 1062;
inline constexpr int kEnd = 103;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kKindLabel, "ｱﾙﾊﾞﾑ"_sj, {10, 9, 34, 8}},
    {ControlKind::kStatic, kCaption1, "", {46, 9, 214, 8}},
    {ControlKind::kStatic, kCaption2, "", {46, 21, 214, 8}},
    {ControlKind::kStatic, kNoControlId, "ﾃﾞｰﾀ"_sj, {190, 37, 24, 8}},
    {ControlKind::kStatic, kPosition, "", {216, 37, 44, 8}},
    {ControlKind::kStatic, kNoControlId, "登録地点一覧"_sj, {10, 37, 100, 8}},
    {ControlKind::kListBox, kPoints, "", {10, 48, 250, 86}},
    {ControlKind::kStatic, kNoControlId, "地点"_sj, {10, 144, 44, 8}},
    {ControlKind::kEdit, kPlace, "", {56, 141, 204, 14}},
    {ControlKind::kStatic, kNoControlId, "項目"_sj, {10, 162, 44, 8}},
    {ControlKind::kEdit, kItem, "", {56, 159, 204, 14}},
    {ControlKind::kStatic, kNoControlId, "ﾃｷｽﾄ ﾌｧｲﾙ"_sj, {10, 180, 44, 8}},
    {ControlKind::kEdit, kTextFile, "", {56, 177, 204, 14}, kTakesFile},
    {ControlKind::kStatic, kNoControlId, "画像 ﾌｧｲﾙ"_sj, {10, 198, 44, 8}},
    {ControlKind::kEdit, kPictureFile, "", {56, 195, 204, 14}, kTakesFile},
    {ControlKind::kStatic, kNoControlId, "座標"_sj, {10, 216, 44, 8}},
    {ControlKind::kStatic, kLatitude, "", {56, 216, 60, 8}, kPlain, {}, "緯度"_sj},
    {ControlKind::kStatic, kLongitude, "", {120, 216, 60, 8}, kPlain, {}, "経度"_sj},
    {ControlKind::kGroupBox, kDisplayGroup, "ｱﾙﾊﾞﾑの表示方法"_sj, {10, 231, 122, 30}},
    {ControlKind::kRadioButton, kAutomatic, "自動"_sj, {20, 245, 50, 10}, kGroupStart},
    {ControlKind::kRadioButton, kManual, "手動"_sj, {74, 245, 50, 10}},
    {ControlKind::kPushButton, kRegister, "****", {202, 241, 58, 16}},
    {ControlKind::kPushButton, kEnd, "OK", {138, 269, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {202, 269, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    149, "        ｱﾙﾊﾞﾑに登録されたﾌｧｲﾙ"_sj, Placement::kAtPosition, 340, 20, 270, 292, kControls};

}  // namespace orreryui::album_files

#endif  // ORRERYUI_TEMPLATES_ALBUM_FILES_H_
