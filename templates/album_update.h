// Template 147: an album's registered point and its data.
#ifndef ORRERYUI_TEMPLATES_ALBUM_UPDATE_H_
#define ORRERYUI_TEMPLATES_ALBUM_UPDATE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

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
    {ControlKind::kGroupBox, kNoControlId, "ｱﾙﾊﾞﾑ登録地点"_sj, {7, 7, 256, 93}},
    {ControlKind::kStatic, kNoControlId, "地名"_sj, {16, 24, 44, 8}},
    {ControlKind::kMultiLineEdit, kPlace, "", {62, 21, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "項目"_sj, {16, 43, 44, 8}},
    {ControlKind::kMultiLineEdit, kItem, "", {62, 40, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "座標"_sj, {16, 62, 44, 8}},
    {ControlKind::kMultiLineEdit, kLatitude, "", {62, 59, 70, 15}, kRightAligned, {}, "緯度"_sj},
    {ControlKind::kMultiLineEdit, kLongitude, "", {62, 78, 70, 15}, kRightAligned, {}, "経度"_sj},
    {ControlKind::kGroupBox, kNoControlId, "登録地点のﾃﾞｰﾀ"_sj, {7, 105, 256, 184}},
    {ControlKind::kStatic, kNoControlId, "ﾒﾓ 1"_sj, {16, 122, 44, 8}},
    {ControlKind::kMultiLineEdit, kMemo1, "", {62, 119, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "ﾒﾓ 2"_sj, {16, 141, 44, 8}},
    {ControlKind::kMultiLineEdit, kMemo2, "", {62, 138, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "ﾃｷｽﾄ ﾌｧｲﾙ"_sj, {16, 160, 44, 8}},
    {ControlKind::kEdit, kTextFile, "", {62, 157, 193, 14}, kTakesFile},
    {ControlKind::kStatic, kNoControlId, "画像 ﾌｧｲﾙ"_sj, {16, 178, 44, 8}},
    {ControlKind::kEdit, kPictureFile, "", {62, 175, 193, 14}, kTakesFile},
    {ControlKind::kStatic, kNoControlId, "ﾃﾞｰﾀ番号"_sj, {16, 197, 44, 8}},
    {ControlKind::kStatic, kDataNo, "", {62, 197, 60, 8}},
    {ControlKind::kPushButton, kPreviewText, "ﾃｷｽﾄ参照"_sj, {191, 193, 64, 16}},
    {ControlKind::kStatic, kNoControlId, "ファイル一覧"_sj, {16, 212, 60, 8}},
    {ControlKind::kListBox, kData, "", {16, 222, 239, 41}},
    {ControlKind::kStatic, kNoControlId, "ﾃﾞｰﾀ"_sj, {16, 271, 20, 8}},
    {ControlKind::kStatic, kPosition, "   件"_sj, {40, 271, 60, 8}},
    {ControlKind::kPushButton, kEditAlbum, "編集"_sj, {191, 267, 64, 16}},
    {ControlKind::kPushButton, kDeleteAlbum, "ｱﾙﾊﾞﾑを削除"_sj, {7, 295, 58, 16}},
    {ControlKind::kPushButton, kEndUpdate, "更新を終了"_sj, {81, 295, 58, 16}},
    {ControlKind::kPushButton, IDOK, "OK", {143, 295, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {205, 295, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    147, "  アルバムデータの更新"_sj, Placement::kAtPosition, 340, 20, 270, 318, kControls};

}  // namespace orreryui::album_update

#endif  // ORRERYUI_TEMPLATES_ALBUM_UPDATE_H_
