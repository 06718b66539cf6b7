// Template 175: the panel below the file chooser, for the file that the results of a retrieval go
// to.
#ifndef ORRERYUI_TEMPLATES_RESULT_FILE_H_
#define ORRERYUI_TEMPLATES_RESULT_FILE_H_

#include "platform/dialogs/dialog_template.h"
#include "platform/strings/japanese_literal.h"

namespace orreryui::result_file {

inline constexpr int kChooser = 1119;  // marks the place of the chooser's own controls
inline constexpr int kFacts = 1151;
inline constexpr int kAppend = 1154;
inline constexpr int kNew = 1155;
inline constexpr int kDat = 1156;
inline constexpr int kYmd = 1157;
inline constexpr int kCsv = 1158;
inline constexpr int kElevation = 1161;

// The text of kFacts for a file whose size and date can't be told.
inline constexpr const char* kWillBeCreated = "上記のファイルを作成して検索結果を保存します！"_sj;

// The texts of kCsv for place names and for public facilities.
inline constexpr const char* kPlaceCsv = "注記テーブル形式(csv)"_sj;
inline constexpr const char* kFacilityCsv = "公共施設ﾃｰﾌﾞﾙ形式(csv)"_sj;

inline constexpr ControlTemplate kControls[] = {
    {ControlKind::kStatic, kChooser, "", {0, 0, 340, 1}, kHidden},
    {ControlKind::kStatic, kNoControlId, "属性"_sj, {4, 5, 24, 8}},
    {ControlKind::kStatic,
     kFacts,
     "検索結果をファイルに保存。保存する場所、ファイル名を指定してください！"_sj,
     {32, 5, 304, 8}},
    {ControlKind::kGroupBox, kNoControlId, "ファイル出力"_sj, {4, 19, 88, 58}},
    {ControlKind::kRadioButton, kAppend, "追加"_sj, {12, 33, 74, 10}, kGroupStart},
    {ControlKind::kRadioButton, kNew, "新規作成"_sj, {12, 47, 74, 10}},
    {ControlKind::kGroupBox, kNoControlId, "出力ファイルの書式"_sj, {100, 19, 148, 58}},
    {ControlKind::kRadioButton, kDat, "山河録Ｖ7形式(dat)"_sj, {108, 33, 134, 10}, kGroupStart},
    {ControlKind::kRadioButton, kYmd, "やまおたく形式(ydb)"_sj, {108, 47, 134, 10}},
    {ControlKind::kRadioButton, kCsv, kPlaceCsv, {108, 61, 134, 10}},
    {ControlKind::kGroupBox, kNoControlId, "仮の地点標高"_sj, {256, 19, 80, 58}},
    {ControlKind::kStatic, kElevation, "-9999", {264, 34, 66, 8}},
};

inline constexpr DialogTemplate kTemplate = {175, "",       Placement::kCentred, 0, 0, 340,
                                             81,  kControls};

}  // namespace orreryui::result_file

#endif  // ORRERYUI_TEMPLATES_RESULT_FILE_H_
