// The sheet on which a retrieval is set up, over place names or public facilities: two pages of
// conditions, one for the display of what is found, and the choice of a file for the results.
//
// Nothing is searched and no condition is checked. The page that is open decides what is searched
// for; on the page of the display that is what it was before.
#ifndef ORRERYUI_RETRIEVAL_RETRIEVAL_SHEET_DIALOG_H_
#define ORRERYUI_RETRIEVAL_RETRIEVAL_SHEET_DIALOG_H_

#include "retrieval/display_page.h"
#include "retrieval/facility_page.h"
#include "retrieval/name_page.h"

namespace orreryui {

// What is searched for, which is also the tab of its page.
inline constexpr int kPlaceNames = 0;
inline constexpr int kFacilities = 1;

class CDlgGnpfSheet : public DialogWithMessages<CDlgGnpfSheet> {
 public:
  CDlgGnpfSheet();

  // The pages, whose fields are filled before the run and read after it.
  CDlgGnpfName m_pageName;
  CDlgGnpfFacility m_pageFacility;
  CDlgGnpfDisplay m_pageDisplay;

  int m_nRetrieveKind = kPlaceNames;  // any other number stays until a page is opened
  int m_nCurrentTab = 0;              // 0 to 2; any other opens tab 0
  int m_bSave = 0;                    // 1: save what is found as well
  int m_nFileNew = 0;                 // 0: add to the file, 1: a new file
  int m_nFileFormat = 0;              // 0: dat, 1: ymd, 2: csv
  int m_nProvisionalElev = 0;         // elevation that the choice of the file shows
  CString m_strFilePath;              // of the results; empty for none

  static std::span<const Message<CDlgGnpfSheet>> Messages();

 private:
  void OnInitDialog() override;
  void OnOK() override;
  void OnTabChanged();
  void OnDisplayOnly();
  void OnSave();

  bool FindsByOpenPage() const { return m_nCurrentTab <= kFacilities; }
  void LabelAccept();
};

}  // namespace orreryui

#endif  // ORRERYUI_RETRIEVAL_RETRIEVAL_SHEET_DIALOG_H_
