#include "presentation/memo_dialog.h"

#include <utility>

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
  if (m_nMemoMode == kMemoOfFile) m_strText = ReadMemo(m_strFile);
  if (m_nMemoMode == kPreviewOfFile) m_strText = ReadPreview(m_strFile);
  SetDlgItemText(kText, std::move(m_strText));
}

}  // namespace orreryui
