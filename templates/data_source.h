// Template 134: the data file list.
#ifndef ORRERYUI_TEMPLATES_DATA_SOURCE_H_
#define ORRERYUI_TEMPLATES_DATA_SOURCE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::data_source {

inline constexpr int kFiles = 135;
inline constexpr int kPosition = 1048;
inline constexpr int kDelete = 109;
inline constexpr int kNewFile = 101;
inline constexpr int kRegister = 103;
inline constexpr int kUseCommonArea = 1020;
inline constexpr int kNote = 1021;

inline constexpr const char* kFixedFiles[] = {"HD(共通領域)"_sj};

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kNoControlId, "ﾃﾞｰﾀﾌｧｲﾙ"_sj, {10, 13, 44, 8}},
    {ControlKind::kComboBox, kFiles, "", {56, 10, 130, 14}, kPlain, kFixedFiles},
    {ControlKind::kStatic, kPosition, "", {194, 13, 44, 8}},
    {ControlKind::kPushButton, kDelete, "上記ﾌｧｲﾙ   を削除"_sj, {56, 29, 90, 16}},
    {ControlKind::kStatic, kNoControlId, "新規ﾌｧｲﾙ"_sj, {10, 61, 44, 8}},
    {ControlKind::kMultiLineEdit, kNewFile, "", {56, 57, 130, 15}},
    {ControlKind::kPushButton, kRegister, "新規登録"_sj, {194, 56, 58, 16}},
    {ControlKind::kStatic,
     kNoControlId,
     "ﾌｧｲﾙの命名方法はﾍﾙﾌﾟﾌｧｲﾙを参照してください。"_sj,
     {56, 77, 196, 8}},
    {ControlKind::kStatic,
     kNoControlId,
     "１つのﾃﾞｰﾀﾌｧｲﾙに2700地点登録できます。"_sj,
     {56, 89, 196, 8}},
    {ControlKind::kCheckBox,
     kUseCommonArea,
     "HD(共通領域)と指定のﾃﾞｰﾀﾌｧｲﾙを利用"_sj,
     {10, 108, 242, 10}},
    {ControlKind::kStatic, kNote, "", {22, 122, 230, 8}},
    {ControlKind::kPushButton, IDOK, "OK", {128, 142, 58, 16}, kDefaultButton},
    {ControlKind::kPushButton, IDCANCEL, "ｷｬﾝｾﾙ"_sj, {194, 142, 58, 16}},
};

inline constexpr DialogTemplate kTemplate = {
    134, "         データファイルの登録と選択"_sj, Placement::kCentred, 0, 0, 262, 168, kControls};

}  // namespace orreryui::data_source

#endif  // ORRERYUI_TEMPLATES_DATA_SOURCE_H_
