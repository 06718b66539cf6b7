// Template 147: an album's registered point and its data.
#ifndef ORRERYUI_TEMPLATES_ALBUM_UPDATE_H_
#define ORRERYUI_TEMPLATES_ALBUM_UPDATE_H_

#include "platform/dialog_template.h"
#include "platform/japanese_literal.h"

namespace orreryui::album_update {

inline constexpr int kPlace = 129;
inline constexpr int kItem = 130;
inline constexpr int kLatitude = 132;
inline constexpr int kLongitude = 1000;
inline constexpr int kMemo1 = 106;
inline constexpr int kMemo2 = 104;
inline constexpr int kTextFile = 105;
inline constexpr int kPictureFile = 101;
inline constexpr int kDataNo = 1045;
inline constexpr int kPreviewText = 114;
inline constexpr int kData = 128;
inline constexpr int kPosition = 131;
inline constexpr int kEditAlbum = 1076;
inline constexpr int kDeleteAlbum = 121;
inline constexpr int kEndUpdate = 103;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kGroupBox, kNoControlId, "ｱﾙﾊﾞﾑ登録地点"_sj, {7, 7, 256, 95}},
    {ControlKind::kStatic, kNoControlId, "地名"_sj, {16, 26, 44, 8}},
    {ControlKind::kMultiLineEdit, kPlace, "", {62, 23, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "項目"_sj, {16, 45, 44, 8}},
    {ControlKind::kMultiLineEdit, kItem, "", {62, 42, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "座標"_sj, {16, 64, 44, 8}},
    {ControlKind::kMultiLineEdit, kLatitude, "", {62, 61, 70, 15}, kRightAligned},
    {ControlKind::kMultiLineEdit, kLongitude, "", {62, 80, 70, 15}, kRightAligned},
    {ControlKind::kGroupBox, kNoControlId, "登録地点のﾃﾞｰﾀ"_sj, {7, 108, 256, 189}},
    {ControlKind::kStatic, kNoControlId, "ﾒﾓ 1"_sj, {16, 127, 44, 8}},
    {ControlKind::kMultiLineEdit, kMemo1, "", {62, 124, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "ﾒﾓ 2"_sj, {16, 146, 44, 8}},
    {ControlKind::kMultiLineEdit, kMemo2, "", {62, 143, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "ﾃｷｽﾄ ﾌｧｲﾙ"_sj, {16, 165, 44, 8}},
    {ControlKind::kEdit, kTextFile, "", {62, 162, 193, 14}},
    {ControlKind::kStatic, kNoControlId, "画像 ﾌｧｲﾙ"_sj, {16, 183, 44, 8}},
    {ControlKind::kEdit, kPictureFile, "", {62, 180, 193, 14}},
    {ControlKind::kStatic, kNoControlId, "ﾃﾞｰﾀ番号"_sj, {16, 202, 44, 8}},
    {ControlKind::kStatic, kDataNo, "", {62, 202, 60, 8}},
    {ControlKind::kPushButton, kPreviewText, "ﾃｷｽﾄ参照"_sj, {191, 198, 64, 16}},
    {ControlKind::kStatic, kNoControlId, "ファイル一覧"_sj, {16, 217, 60, 8}},
    {ControlKind::kListBox, kData, "", {16, 227, 239, 44}},
    {ControlKind::kStatic, kNoControlId, "ﾃﾞｰﾀ"_sj, {16, 279, 20, 8}},
    {ControlKind::kStatic, kPosition, "   件"_sj, {40, 279, 60, 8}},
    {ControlKind::kPushButton, kEditAlbum, "編集"_sj, {191, 275, 64, 16}},
    {ControlKind::kPushButton, kDeleteAlbum, "ｱﾙﾊﾞﾑを削除"_sj, {7, 303, 58, 16}},
    {ControlKind::kPushButton, kEndUpdate, "更新を終了"_sj, {81, 303, 58, 16}},
    {ControlKind::kPushButton, IDOK, "OK", {143, 303, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {205, 303, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    147, "  アルバムデータの更新"_sj, Placement::kAtPosition, 340, 20, 270, 326, kControls};

}  // namespace orreryui::album_update

#endif  // ORRERYUI_TEMPLATES_ALBUM_UPDATE_H_
