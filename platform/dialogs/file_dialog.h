// The file chooser with a panel of a dialog's own below it. The dialog is the panel: its template
// and message map are the panel's, and its handlers run while the chooser is open. The chooser
// opens files; whether a name must exist is up to the dialog's caller.
#ifndef ORRERYUI_PLATFORM_DIALOGS_FILE_DIALOG_H_
#define ORRERYUI_PLATFORM_DIALOGS_FILE_DIALOG_H_

#include <string>
#include <vector>

#include "platform/dialogs/dialog.h"
#include "platform/front_end.h"

namespace orreryui {

class CFileDialog : public CDialog {
 public:
  // The first of the types of files is the one that is shown at the start.
  CFileDialog(const DialogTemplate& panel, std::vector<FileFilter> types);

  // Shows the chooser. IDOK with a path, else IDCANCEL; -1 if it couldn't be shown.
  int DoModal();

  // In code page 932: the file that was selected last; once the run has ended in IDOK, the file
  // that was chosen.
  const CString& GetPathName() const { return path_; }

 protected:
  // The user selected a file of the list; GetPathName tells which. A file whose path the code page
  // lacks can't be selected.
  virtual void OnFileNameChange() {}
  // The chooser shows another folder.
  virtual void OnFolderChange() {}

  // Labels the chooser's accepting button.
  void SetAcceptLabel(const char* label);

 private:
  friend class PanelRun;

  bool TakePath(const std::string& path);

  std::vector<FileFilter> types_;
  CString path_;
  CString accept_label_;
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_FILE_DIALOG_H_
