#include "presentation/text_view_dialog.h"

#include "presentation/attached_text.h"
#include "templates/text_view.h"

namespace orreryui {

using namespace text_view;

CDlgTextView::CDlgTextView() : CDialog(kTemplate) {}

void CDlgTextView::OnInitDialog() {
  SetWindowText(m_strTitle1 + ' ' + m_strTitle2);
  SetDlgItemText(kPath, m_strFile);
  SetDlgItemText(kText, ReadMainText(m_strFile));
}

}  // namespace orreryui
