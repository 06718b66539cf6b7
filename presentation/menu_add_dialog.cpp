#include "presentation/menu_add_dialog.h"

#include "frame/choose_open_file.h"
#include "frame/choose_picture.h"
#include "templates/menu_add.h"

namespace orreryui {

using namespace menu_add;

std::span<const Message<CDlgMenuAdd>> CDlgMenuAdd::Messages() {
  static constexpr Message<CDlgMenuAdd> kMessages[] = {
      {kChooseFile, Event::kClick, &CDlgMenuAdd::OnChooseFile},
  };
  return kMessages;
}

CDlgMenuAdd::CDlgMenuAdd() : DialogWithMessages(kTemplate) {}

void CDlgMenuAdd::DoDataExchange(DataExchange& exchange) {
  exchange.Text(kTitle, m_strTitle);
  exchange.Text(kFile, m_strFile);
}

void CDlgMenuAdd::OnInitDialog() {
  if (m_nMode == kChangeEntry) {
    SetWindowText("メニューの更新"_sj);
    SetDlgItemText(IDOK, "更新"_sj);
  }
  if (m_nKind >= 1) SetDlgItemText(kFileLabel, "画像 ﾌｧｲﾙ"_sj);
}

void CDlgMenuAdd::OnChooseFile() {
  const CString current = GetDlgItemText(kFile);
  const CString path = m_nKind >= 1
                           ? ChoosePicture(current)
                           : ChooseOpenFile("txt", "*.txt", "ﾃｷｽﾄ files (*.txt)|*.txt"_sj, current);
  if (path.IsEmpty()) return;
  m_strFile = path;
  SetDlgItemText(kFile, m_strFile);
}

}  // namespace orreryui
