#include <orreryui/orreryui.h>

#include "frame/split.h"
#include "operations/result_string.h"
#include "operations/run_operation.h"
#include "retrieval/range_dialog.h"
#include "retrieval/retrieval_sheet_dialog.h"

namespace orreryui {
namespace {

// The large class of place names that stands for the facilities.
constexpr int kLargeClassOfFacilities = 7;

// Conditions as they travel between the host and the sheet. Of facilities, the large class stands
// in the place of the middle one, and the name of the small class in that of the middle one's.
struct HostConditions : GnpfConditions {
  int m_nMiddle = -1;
  CString m_strMiddle;
};

void Load(CDlgGnpfSheet& sheet, const HostConditions& given) {
  CDlgGnpfName& names = sheet.m_pageName;
  CDlgGnpfFacility& facilities = sheet.m_pageFacility;
  if (sheet.m_nRetrieveKind == kPlaceNames) {
    static_cast<GnpfConditions&>(names) = given;
    names.m_nMiddle = given.m_nMiddle;
    names.m_strMiddle = given.m_strMiddle;
  } else if (sheet.m_nRetrieveKind == kFacilities) {
    names.m_nLarge = kLargeClassOfFacilities;
    static_cast<GnpfConditions&>(facilities) = given;
    facilities.m_nLarge = given.m_nMiddle;
    facilities.m_strSmall = given.m_strMiddle;
  }
}

// The conditions that are searched for; `given` if the sheet has no page for their kind.
HostConditions Taken(const CDlgGnpfSheet& sheet, const HostConditions& given) {
  const CDlgGnpfName& names = sheet.m_pageName;
  const CDlgGnpfFacility& facilities = sheet.m_pageFacility;
  if (sheet.m_nRetrieveKind == kPlaceNames) return {names, names.m_nMiddle, names.m_strMiddle};
  if (sheet.m_nRetrieveKind != kFacilities) return given;
  HostConditions taken = {facilities, facilities.m_nLarge, facilities.m_strSmall};
  taken.m_nLarge = kLargeClassOfFacilities;
  taken.m_strSmall.Empty();
  return taken;
}

CString Compose(const CDlgGnpfSheet& sheet, const HostConditions& taken) {
  return ResultString()
      .Number(sheet.m_nRetrieveKind)
      .Number(sheet.m_nFileNew)
      .Number(sheet.m_nFileFormat)
      .Number(taken.m_nLarge)
      .Number(taken.m_nMiddle)
      .Number(taken.m_nSmall)
      .Number(taken.m_nAdmin)
      .Number(sheet.m_pageDisplay.m_nNameDisplay)
      .Number(sheet.m_pageDisplay.m_nCharSize)
      .Number(sheet.m_nCurrentTab)
      .Text(sheet.m_strFilePath)
      .Text(taken.m_strLarge)
      .Text(taken.m_strMiddle)
      .Text(taken.m_strSmall)
      .Text(taken.m_strMesh)
      .Text(taken.m_strAdminCode)
      .Text(taken.m_strAdminName)
      .End(taken.m_strWord);
}

}  // namespace

CString OnGnpfRetrieveSet(int view, int file_new, int file_format, int elevation, int kind,
                          int large, int middle, int small, int prefecture, CString mesh,
                          CString word, CString texts) {
  return RunOperation(CString(), [&] {
    CDlgGnpfSheet sheet;
    sheet.m_nCurrentTab = view % 10;
    sheet.m_pageDisplay.m_nNameDisplay = view / 10 % 10;
    sheet.m_pageDisplay.m_nCharSize = view / 100;
    sheet.m_nFileNew = file_new;
    sheet.m_nFileFormat = file_format;
    sheet.m_nProvisionalElev = elevation;
    sheet.m_nRetrieveKind = kind;
    sheet.m_strFilePath = TakeField(texts, '|');
    HostConditions given;
    given.m_nLarge = large;
    given.m_nMiddle = middle;
    given.m_nSmall = small;
    given.m_nAdmin = prefecture;
    given.m_strMesh = mesh;
    given.m_strWord = word;
    given.m_strLarge = TakeField(texts, '|');
    given.m_strMiddle = TakeField(texts, '|');
    given.m_strSmall = texts;
    Load(sheet, given);
    return sheet.DoModal() == IDOK ? Compose(sheet, Taken(sheet, given)) : CString();
  });
}

int OnRengeConfirm(CString west, CString north, CString east, CString south) {
  return RunOperation(-1, [&] {
    CDlgRange dialog;
    dialog.m_strWest = west;
    dialog.m_strNorth = north;
    dialog.m_strEast = east;
    dialog.m_strSouth = south;
    return dialog.DoModal() == IDOK ? 1 : -1;
  });
}

}  // namespace orreryui
