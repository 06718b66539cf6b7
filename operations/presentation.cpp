#include <orreryui/orreryui.h>

#include <algorithm>

#include "operations/result_string.h"
#include "operations/run_operation.h"
#include "presentation/memo_dialog.h"
#include "presentation/menu_file_dialog.h"
#include "presentation/menu_slide_dialog.h"
#include "presentation/slide_dialog.h"
#include "presentation/text_view_dialog.h"

namespace orreryui {

int OnDlgMenuBarFileUpdate(CString folder, CString editor, int kind) {
  return RunOperation(-1, [&] {
    if (kind < kTextMenus || kind > kPictureMap) return -1;
    CDlgMenuFile dialog;
    dialog.m_strFolder = folder;
    dialog.m_strEditor = editor;
    dialog.m_nKind = kind;
    return dialog.DoModal() == IDOK ? dialog.m_nResult : -1;
  });
}

CString OnDlgMenuBarSlideSet(CString folder, CString display, int interval) {
  return RunOperation(CString(), [&] {
    CDlgMenuSlide dialog;
    dialog.m_strFolder = folder;
    dialog.m_strDisplay = display;
    dialog.m_nInterval = interval;
    if (dialog.DoModal() != IDOK) return CString();
    if (dialog.m_bAll == 1) dialog.m_aChosen.fill(1);
    const bool any = std::ranges::find(dialog.m_aChosen, 1) != dialog.m_aChosen.end();
    ResultString result;
    for (const int chosen : dialog.m_aChosen) result.Number(chosen);
    return result.Number(dialog.m_bAll)
        .Number(any ? 1 : -1)
        .Number(dialog.m_nInterval)
        .End(dialog.m_strDisplay);
  });
}

CString OnSlideSet(int content, int interval, int map_size, CString memo, CString method,
                   CString remaining, CString position_map, CString jpeg) {
  return RunOperation(CString(), [&] {
    CDlgSlide dialog;
    dialog.m_nContent = content;
    dialog.m_nInterval = interval;
    dialog.m_nMapSize = map_size;
    dialog.m_strMemo = memo;
    dialog.m_strMethod = method;
    dialog.m_strRemaining = remaining;
    dialog.m_strPositionMap = position_map;
    dialog.m_strJpeg = jpeg;
    if (dialog.DoModal() != IDOK) return CString();
    return ResultString()
        .Number(dialog.m_nContent)
        .Number(dialog.m_nInterval)
        .Number(dialog.m_nMapSize)
        .Text(dialog.m_strMemo)
        .Text(dialog.m_strMethod)
        .Text(dialog.m_strRemaining)
        .Text(dialog.m_strPositionMap)
        .End(dialog.m_strJpeg);
  });
}

void OnTextDisplayDaialog(CString file, CString title1, CString title2) {
  RunOperation([&] {
    CDlgTextView dialog;
    dialog.m_strFile = file;
    dialog.m_strTitle1 = title1;
    dialog.m_strTitle2 = title2;
    dialog.DoModal();
  });
}

void OnMemoDisplay(int mode, int left, CString file, CString text) {
  RunOperation([&] {
    CDlgMemo dialog;
    dialog.m_nMemoMode = mode;
    dialog.m_nLeft = left;
    dialog.m_strFile = file;
    dialog.m_strText = text;
    dialog.DoModal();
  });
}

}  // namespace orreryui
