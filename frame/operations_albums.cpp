#include <orreryui/orreryui.h>

#include "albums/album_regist_dialog.h"
#include "albums/data_source_dialog.h"
#include "frame/result_string.h"

namespace orreryui {
CString OnDLLAlbumRegist(int code, CString longitude, CString latitude, CString album_file,
                         CString album_number) {
  CDlgAlbumRegist dialog;
  dialog.m_nCode = code;
  dialog.m_strLongitude = longitude;
  dialog.m_strLatitude = latitude;
  dialog.m_strAlbumFile = album_file;
  dialog.m_strAlbumNo = album_number;
  if (dialog.DoModal() != IDOK) return "4||||";
  return ResultString()
      .Number(dialog.m_nCode)
      .Text(dialog.m_strLongitude)
      .Text(dialog.m_strLatitude)
      .Text(dialog.m_strPlace)
      .End(dialog.m_strItem);
}

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
