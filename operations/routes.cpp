#include <orreryui/orreryui.h>

#include "operations/result_string.h"
#include "operations/run_operation.h"
#include "routes/album_files_dialog.h"
#include "routes/map_mode.h"
#include "routes/route_select_dialog.h"

namespace orreryui {
namespace {

// The result of a run that the user gave up.
constexpr char kCancelled[] = "cancel";

}  // namespace

CString OnRouteInformation(int kind, CString display, CString editor, CString folder) {
  return RunOperation(CString(), [&] {
    CDlgRouteSelect dialog;
    dialog.m_nKind = kind;
    dialog.m_strDisplay = display;
    dialog.m_strEditor = editor;
    dialog.m_strFolder = folder;
    if (dialog.DoModal() != IDOK) return CString();
    return ResultString()
        .Number(dialog.m_nSelected)
        .Text(dialog.m_strName)
        .Text(dialog.m_strPath)
        .End(dialog.m_strDisplay);
  });
}

// The host's interface passes texts by value, those that aren't used as well.
// NOLINTBEGIN(performance-unnecessary-value-param)
CString OnRouteRegistModule(int shape, int size, CString folder, CString, CString, CString mode,
                            CString caption1, CString caption2, CString, CString,
                            CString centre_latitude, CString centre_longitude, CString list_display,
                            CString file_display, CString list) {
  // NOLINTEND(performance-unnecessary-value-param)
  return RunOperation(CString(kCancelled), [&]() -> CString {
    CDlgAlbumFiles dialog;
    dialog.m_strMode = mode;
    dialog.m_strFolder = folder;
    dialog.m_strCaption1 = caption1;
    dialog.m_strCaption2 = mode == kAreaMode ? RangeOfArea(shape, size) : caption2;
    dialog.m_strCentreLat = centre_latitude;
    dialog.m_strCentreLon = centre_longitude;
    const bool takes_list = mode == kRouteMode || mode == kAreaMode;
    dialog.m_strDisplay = takes_list ? list_display : file_display;
    if (takes_list) dialog.m_aLines = LinesOfList(list);
    return dialog.DoModal() == IDOK ? dialog.m_strDisplay : kCancelled;
  });
}

}  // namespace orreryui
