#include <orreryui/orreryui.h>

#include "retrieval/range_dialog.h"

namespace orreryui {

int OnRengeConfirm(CString west, CString north, CString east, CString south) {
  CDlgRange dialog;
  dialog.m_strWest = west;
  dialog.m_strNorth = north;
  dialog.m_strEast = east;
  dialog.m_strSouth = south;
  return dialog.DoModal() == IDOK ? 1 : -1;
}

}  // namespace orreryui
