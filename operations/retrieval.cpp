#include <orreryui/orreryui.h>

#include "operations/run_operation.h"
#include "retrieval/range_dialog.h"

namespace orreryui {

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
