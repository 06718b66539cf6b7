#include <orreryui/orreryui.h>

#include "albums/album_regist_dialog.h"
#include "albums/album_update_dialog.h"
#include "albums/data_source_dialog.h"
#include "operations/result_string.h"
#include "operations/run_operation.h"

namespace orreryui {
namespace {

// The result of a registration that the user didn't end.
constexpr char kNotRegistered[] = "4||||";

// What the host is to do with the registered point after an update.
constexpr int kStoreTexts = 1;
constexpr int kGoOn = 2;
constexpr int kDelete = 3;

// Each text has a blank behind it, the last one, too.
CString PointOf(const CDlgAlbumUpdate& dialog) {
  return dialog.m_strPlace + ' ' + dialog.m_strLatitude + ' ' + dialog.m_strLongitude + ' ' +
         dialog.m_strItem + ' ';
}

}  // namespace

CString OnDLLAlbumRegist(int code, CString longitude, CString latitude, CString album_file,
                         CString album_number) {
  return RunOperation(CString(kNotRegistered), [&]() -> CString {
    CDlgAlbumRegist dialog;
    dialog.m_nCode = code;
    dialog.m_strLongitude = longitude;
    dialog.m_strLatitude = latitude;
    dialog.m_strAlbumFile = album_file;
    dialog.m_strAlbumNo = album_number;
    if (dialog.DoModal() != IDOK) return kNotRegistered;
    return ResultString()
        .Number(dialog.m_nCode)
        .Text(dialog.m_strLongitude)
        .Text(dialog.m_strLatitude)
        .Text(dialog.m_strPlace)
        .End(dialog.m_strItem);
  });
}

CString OnAlbumUpdate(int code, CString state, CString album_file, CString place, CString item,
                      CString longitude, CString latitude, CString editor) {
  return RunOperation(CString(), [&] {
    CDlgAlbumUpdate dialog;
    dialog.m_nCode = code;
    dialog.m_strAlbumState = state;
    dialog.m_strAlbumFile = album_file;
    dialog.m_strPlace = place;
    dialog.m_strItem = item;
    dialog.m_strLongitude = longitude;
    dialog.m_strLatitude = latitude;
    dialog.m_strEditor = editor;
    const int end = dialog.DoModal();
    if (end == IDOK) {
      const int end_state = dialog.m_nCode == 0 ? kGoOn : kStoreTexts;
      return ResultString().Number(dialog.m_nCode).Number(end_state).End(PointOf(dialog));
    }
    // A dialog that couldn't be shown asks for no deletion, whatever code came in.
    if (end != -1 && dialog.m_nCode == -1)
      return ResultString().Number(code).Number(kDelete).End("");
    return CString();
  });
}

CString OnDataSourceSet(int selected, CString common_area, CString folder) {
  return RunOperation(CString(), [&] {
    CDlgDataSource dialog;
    dialog.m_nSelected = selected;
    dialog.m_strCommonArea = common_area;
    dialog.m_strFolder = folder;
    if (dialog.DoModal() != IDOK) return CString();
    return ResultString()
        .Number(dialog.m_nSelected)
        .Text(dialog.m_strCommonArea)
        .End(dialog.m_strFile);
  });
}

}  // namespace orreryui
