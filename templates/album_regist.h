// Template 148: a new album.
#ifndef ORRERYUI_TEMPLATES_ALBUM_REGIST_H_
#define ORRERYUI_TEMPLATES_ALBUM_REGIST_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::album_regist {

inline constexpr int kPlace = 101;
inline constexpr int kItem = 104;
inline constexpr int kLatitude = 105;
inline constexpr int kLongitude = 129;
inline constexpr int kAlbumNo = 1044;
inline constexpr int kMemo1 = 106;
inline constexpr int kMemo2 = 107;
inline constexpr int kTextFile = 108;
inline constexpr int kChooseTextFile = 109;
inline constexpr int kPictureFile = 102;
inline constexpr int kChoosePicture = 115;
inline constexpr int kDataNo = 1045;
inline constexpr int kPreviewText = 114;
inline constexpr int kAddData = 117;
inline constexpr int kCancel = 1047;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kGroupBox, kNoControlId, "アルバム登録地点"_sj, {7, 7, 256, 88}},
    {ControlKind::kStatic, kNoControlId, "地名"_sj, {16, 26, 44, 8}},
    {ControlKind::kMultiLineEdit, kPlace, "", {62, 23, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "項目"_sj, {16, 45, 44, 8}},
    {ControlKind::kMultiLineEdit, kItem, "", {62, 42, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "座標"_sj, {16, 64, 44, 8}},
    {ControlKind::kMultiLineEdit, kLatitude, "", {62, 61, 70, 15}, kPlain, {}, "緯度"_sj},
    {ControlKind::kMultiLineEdit, kLongitude, "", {136, 61, 70, 15}, kPlain, {}, "経度"_sj},
    {ControlKind::kStatic, kNoControlId, "ｱﾙﾊﾞﾑNo."_sj, {16, 81, 44, 8}},
    {ControlKind::kStatic, kAlbumNo, "", {62, 81, 193, 8}},
    {ControlKind::kGroupBox,
     kNoControlId,
     "アルバムに追加するファイル（メモは必要な場合に記述)"_sj,
     {7, 101, 256, 115}},
    {ControlKind::kStatic, kNoControlId, "メモその１"_sj, {16, 120, 44, 8}},
    {ControlKind::kMultiLineEdit, kMemo1, "", {62, 117, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "メモその２"_sj, {16, 139, 44, 8}},
    {ControlKind::kMultiLineEdit, kMemo2, "", {62, 136, 193, 15}},
    {ControlKind::kStatic, kNoControlId, "ﾃｷｽﾄﾌｧｲﾙ"_sj, {16, 159, 44, 8}},
    {ControlKind::kEdit, kTextFile, "", {62, 156, 147, 14}, kTakesFile},
    {ControlKind::kPushButton,
     kChooseTextFile,
     "ﾌｧｲﾙ"_sj,
     {215, 155, 40, 16},
     kPlain,
     {},
     "ﾃｷｽﾄﾌｧｲﾙを選ぶ"_sj},
    {ControlKind::kStatic, kNoControlId, "画像ﾌｧｲﾙ"_sj, {16, 178, 44, 8}},
    {ControlKind::kEdit, kPictureFile, "", {62, 175, 147, 14}, kTakesFile},
    {ControlKind::kPushButton,
     kChoosePicture,
     "ﾌｧｲﾙ"_sj,
     {215, 174, 40, 16},
     kPlain,
     {},
     "画像ﾌｧｲﾙを選ぶ"_sj},
    {ControlKind::kStatic, kNoControlId, "ﾃﾞｰﾀ番号"_sj, {16, 198, 44, 8}},
    {ControlKind::kStatic, kDataNo, "", {62, 198, 40, 8}},
    {ControlKind::kPushButton, kPreviewText, "ﾃｷｽﾄ参照"_sj, {123, 194, 64, 16}},
    {ControlKind::kPushButton, kAddData, "ｱﾙﾊﾞﾑに追加"_sj, {191, 194, 64, 16}},
    {ControlKind::kPushButton, IDOK, "登録を終了"_sj, {131, 222, 64, 16}, kDefaultButton},
    {ControlKind::kPushButton, kCancel, "ｷｬﾝｾﾙ"_sj, {199, 222, 64, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    148, "　アルバムの新規登録"_sj, Placement::kAtPosition, 319, 20, 270, 245, kControls};

}  // namespace orreryui::album_regist

#endif  // ORRERYUI_TEMPLATES_ALBUM_REGIST_H_
