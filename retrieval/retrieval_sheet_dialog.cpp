#include "retrieval/retrieval_sheet_dialog.h"

#include "retrieval/result_file.h"
#include "retrieval/result_file_dialog.h"
#include "templates/retrieval_sheet.h"

namespace orreryui {

using namespace retrieval_sheet;

namespace {

constexpr int kDisplayTab = 2;

}  // namespace

std::span<const Message<CDlgGnpfSheet>> CDlgGnpfSheet::Messages() {
  static constexpr Message<CDlgGnpfSheet> kMessages[] = {
      {kTabs, Event::kTabChanged, &CDlgGnpfSheet::OnTabChanged},
      {kDisplayOnly, Event::kClick, &CDlgGnpfSheet::OnDisplayOnly},
      {kSave, Event::kClick, &CDlgGnpfSheet::OnSave},
  };
  return kMessages;
}

CDlgGnpfSheet::CDlgGnpfSheet() : DialogWithMessages(kTemplate) {}

void CDlgGnpfSheet::OnInitDialog() {
  if (m_nCurrentTab < kPlaceNames || m_nCurrentTab > kDisplayTab) m_nCurrentTab = kPlaceNames;
  SetCurSel(kTabs, m_nCurrentTab);
  CheckRadioButton(kDisplayOnly, kSave, m_bSave != 0 ? kSave : kDisplayOnly);
  LabelAccept();
  m_pageName.CreatePage(*this, kTabs, kPlaceNames);
  m_pageFacility.CreatePage(*this, kTabs, kFacilities);
  m_pageDisplay.CreatePage(*this, kTabs, kDisplayTab);
}

// Enter on a page leaves the page first, so that what was just typed there counts.
void CDlgGnpfSheet::OnOK() {
  SetFocus(IDOK);
  if (FindsByOpenPage()) m_nRetrieveKind = m_nCurrentTab;
  CDialog::OnOK();
}

void CDlgGnpfSheet::OnTabChanged() {
  m_nCurrentTab = GetCurSel(kTabs);
  if (FindsByOpenPage()) m_nRetrieveKind = m_nCurrentTab;
  LabelAccept();
}

void CDlgGnpfSheet::OnDisplayOnly() {
  m_bSave = 0;
  m_strFilePath.Empty();
}

void CDlgGnpfSheet::OnSave() {
  m_bSave = 1;
  CDlgFlOut dialog;
  dialog.m_nNew = m_nFileNew;
  dialog.m_nFormat = m_nFileFormat;
  dialog.m_nElevation = m_nProvisionalElev;
  dialog.m_bFacility = m_nRetrieveKind == kFacilities ? 1 : 0;
  if (dialog.DoModal() == IDOK) {
    m_strFilePath =
        dialog.m_strSelectedPath.IsEmpty() ? dialog.GetPathName() : dialog.m_strSelectedPath;
    m_nFileNew = dialog.m_nNew;
    m_nFileFormat = dialog.m_nFormat;
  }
  m_strFilePath.MakeLower();
  m_strFilePath = WithExtension(m_strFilePath, m_nFileFormat);
}

void CDlgGnpfSheet::LabelAccept() {
  SetDlgItemText(IDOK, FindsByOpenPage() ? kRetrieveLabel : "OK");
}

}  // namespace orreryui
