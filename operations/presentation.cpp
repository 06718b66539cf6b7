#include <orreryui/orreryui.h>

#include <algorithm>

#include "operations/result_string.h"
#include "operations/run_operation.h"
#include "presentation/memo_dialog.h"
#include "presentation/menu_file_dialog.h"
#include "presentation/menu_slide_dialog.h"
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
