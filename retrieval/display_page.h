// The page that says where the host shows the place names that were found, and how large.
#ifndef ORRERYUI_RETRIEVAL_DISPLAY_PAGE_H_
#define ORRERYUI_RETRIEVAL_DISPLAY_PAGE_H_

#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgGnpfDisplay : public DialogWithMessages<CDlgGnpfDisplay> {
 public:
  CDlgGnpfDisplay();

  // A value that no button stands for turns none on, and stays until the user clicks one.
  int m_nNameDisplay = 0;  // 0: nowhere, 1: 1x1 map, 2: 1x1 and wide-area map, 3: enlarged map
  int m_nCharSize = 0;     // 0: small, 1: medium, 2: large

  static std::span<const Message<CDlgGnpfDisplay>> Messages();

 private:
  void OnInitDialog() override;
  void OnNameDisplay(int id);
  void OnCharSize(int id);
};

}  // namespace orreryui

#endif  // ORRERYUI_RETRIEVAL_DISPLAY_PAGE_H_
