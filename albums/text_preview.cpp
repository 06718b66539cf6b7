#include "albums/text_preview.h"

#include "presentation/memo_dialog.h"

namespace orreryui {

void PreviewText(const CString& path) {
  if (path.IsEmpty()) return;
  CDlgMemo memo;
  memo.m_nMemoMode = kPreviewOfFile;
  memo.m_strFile = path;
  memo.DoModal();
}

}  // namespace orreryui
