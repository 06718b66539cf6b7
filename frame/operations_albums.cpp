#include <orreryui/orreryui.h>

#include "albums/data_source_dialog.h"
#include "frame/result_string.h"

namespace orreryui {

CString OnDataSourceSet(int selected, CString common_area, CString folder) {
  CDlgDataSource dialog;
  dialog.m_nSelected = selected;
  dialog.m_strCommonArea = common_area;
  dialog.m_strFolder = folder;
  if (dialog.DoModal() != IDOK) return CString();
  return ResultString()
      .Number(dialog.m_nSelected)
      .Text(dialog.m_strCommonArea)
      .End(dialog.m_strFile);
}

}  // namespace orreryui
