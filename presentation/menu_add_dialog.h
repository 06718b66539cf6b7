// One entry of a menu: its title and its file, to be added or to be changed. Ends with IDOK if the
// caller is to take the texts over; whether they make an entry is for the caller to say. No file is
// touched.
#ifndef ORRERYUI_PRESENTATION_MENU_ADD_DIALOG_H_
#define ORRERYUI_PRESENTATION_MENU_ADD_DIALOG_H_

#include "platform/dialogs/dialog.h"

namespace orreryui {

// What the entry is asked for.
enum MenuAddMode : int { kAddEntry = 0, kChangeEntry = 1 };

class CDlgMenuAdd : public DialogWithMessages<CDlgMenuAdd> {
 public:
  CDlgMenuAdd();

  int m_nMode = kAddEntry;  // a MenuAddMode
  int m_nKind = 0;          // 0: the file is a text, any other number: a picture
  CString m_strTitle;       // as its box holds it at OK, with line breaks
  CString m_strFile;

  static std::span<const Message<CDlgMenuAdd>> Messages();

 private:
  void OnInitDialog() override;
  void DoDataExchange(DataExchange& exchange) override;
  void OnChooseFile();
};

}  // namespace orreryui

#endif  // ORRERYUI_PRESENTATION_MENU_ADD_DIALOG_H_
