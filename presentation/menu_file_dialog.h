// The entries of the host's menus: the user looks through one menu after the other, adds entries
// and changes them. What changes is in memory until another menu is shown, the external editor is
// started on the file, or the dialog ends with IDOK; then it is in the file, and stays when the
// user gives up. Where the file can't be written, the click that asked for it has no effect.
//
// An entry is taken off with the editor alone. After it the list shows what it showed before.
#ifndef ORRERYUI_PRESENTATION_MENU_FILE_DIALOG_H_
#define ORRERYUI_PRESENTATION_MENU_FILE_DIALOG_H_

#include "platform/dialogs/dialog.h"
#include "presentation/menu_file.h"

namespace orreryui {

// What menus are shown.
enum MenuKind : int { kTextMenus = 0, kPictureMenus = 1, kPictureMap = 2 };

class CDlgMenuFile : public DialogWithMessages<CDlgMenuFile> {
 public:
  CDlgMenuFile();

  int m_nKind = kTextMenus;  // a MenuKind
  CString m_strFolder;       // the folder of the menu files, with its separator
  CString m_strEditor;       // the command of the text editor
  int m_nSection = -1;       // of the menu file; 0 for the picture map
  int m_nShownSection = -1;  // the one whose entries are listed
  MenuTexts m_aTitles;       // its entries, by slots
  MenuTexts m_aFiles;
  int m_nCount = 0;         // the last slot with a title, plus 1
  int m_nModified = -1;     // 1: the entries aren't in the file as they are here
  int m_nResult = -1;       // 1: the file was written, or the editor was started
  bool m_bComplete = true;  // false: the file couldn't be read, and takes no entry

  static std::span<const Message<CDlgMenuFile>> Messages();

 private:
  void OnInitDialog() override;
  void OnOK() override;
  void OnSelectMenu();
  void OnEditEntry();
  void OnEditFile();

  int FirstSection() const;
  void ShowSection();
  void ShowGuidemap();
  void ShowEntries();
  void AddRow(const char* title, const char* file);
  std::size_t SlotOfRow(int row) const;
  bool AskForEntry(int mode, CString& title, CString& file) const;
  bool TakesEntry(const CString& title, const CString& file) const;
  bool SaveIfModified();
  bool SaveList();
};

}  // namespace orreryui

#endif  // ORRERYUI_PRESENTATION_MENU_FILE_DIALOG_H_
