#include "retrieval/result_file_dialog.h"

#include "retrieval/result_file.h"
#include "templates/result_file.h"

namespace orreryui {

using namespace result_file;

namespace {

std::vector<FileFilter> FileTypes() {
  return {{"すべて *.*", {"*"}},  // names without a dot are among them, too
          {"CSVﾌｧｲﾙ *.csv", {"*.csv"}},
          {"YMDﾌｧｲﾙ *.ymd", {"*.ymd"}},
          {"DATﾌｧｲﾙ *.dat", {"*.dat"}}};
}

}  // namespace

std::span<const Message<CDlgFlOut>> CDlgFlOut::Messages() {
  static constexpr Message<CDlgFlOut> kMessages[] = {
      {kAppend, kNew, Event::kClick, &CDlgFlOut::OnNew},
      {kDat, kCsv, Event::kClick, &CDlgFlOut::OnFormat},
  };
  return kMessages;
}

CDlgFlOut::CDlgFlOut() : DialogWithMessages(kTemplate, FileTypes()) {}

void CDlgFlOut::OnInitDialog() { LabelAccept(); }

void CDlgFlOut::OnFileNameChange() {
  m_strSelectedPath = GetPathName();
  m_strSelectedPath.MakeLower();
  if (const auto facts = FactsOfFile(m_strSelectedPath)) TakeFacts(*facts);
  ShowFields();
}

void CDlgFlOut::OnNew(int id) {
  m_nNew = id - kAppend;
  LabelAccept();
}

void CDlgFlOut::OnFormat(int id) { m_nFormat = id - kDat; }

void CDlgFlOut::TakeFacts(const CString& facts) {
  m_nNew = facts.IsEmpty() ? 1 : 0;
  if (facts.IsEmpty()) return SetDlgItemText(kFacts, kWillBeCreated);
  SetDlgItemText(kFacts, facts);
  m_nFormat = FormatOfPath(m_strSelectedPath);
}

void CDlgFlOut::ShowFields() {
  CheckRadioButton(kAppend, kNew, m_nNew == 0 ? kAppend : kNew);
  for (int id = kDat; id <= kCsv; ++id) CheckDlgButton(id, id - kDat == m_nFormat);
  SetDlgItemText(kCsv, m_bFacility != 0 ? kFacilityCsv : kPlaceCsv);
  SetDlgItemInt(kElevation, m_nElevation);
}

void CDlgFlOut::LabelAccept() { SetAcceptLabel(m_nNew == 0 ? "選択"_sj : "OK"); }

}  // namespace orreryui
