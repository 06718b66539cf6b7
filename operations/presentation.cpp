#include <orreryui/orreryui.h>

#include "operations/run_operation.h"
#include "presentation/memo_dialog.h"
#include "presentation/menu_file_dialog.h"
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
