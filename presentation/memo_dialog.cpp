#include "presentation/memo_dialog.h"

#include "presentation/attached_text.h"
#include "templates/memo.h"

namespace orreryui {

using namespace memo;

namespace {

constexpr int kTop = 560;  // of a window that the caller places, in pixels of the screen

}  // namespace

CDlgMemo::CDlgMemo() : CDialog(kTemplate) {}

void CDlgMemo::OnInitDialog() {
  if (m_nLeft >= 1) MoveWindow(m_nLeft, kTop);
  SetDlgItemText(kPath, m_strFile);
  SetDlgItemText(kText, Text());
}

CString CDlgMemo::Text() const {
  switch (m_nMemoMode) {
    case kMemoOfFile:
      return ReadMemo(m_strFile);
    case kPreviewOfFile:
      return ReadPreview(m_strFile);
    default:
      return m_strText;
  }
}

}  // namespace orreryui
