// The file that the results of a retrieval go to: the file chooser with a panel that says whether
// they are added to the file, in which format they are written, and what is known of a file that
// exists. Nothing is written or created. A name may be typed that doesn't exist.
//
// Selecting a file that exists means to add to it, in the format of its name.
#ifndef ORRERYUI_RETRIEVAL_RESULT_FILE_DIALOG_H_
#define ORRERYUI_RETRIEVAL_RESULT_FILE_DIALOG_H_

#include "platform/dialogs/file_dialog.h"

namespace orreryui {

class CDlgFlOut : public DialogWithMessages<CDlgFlOut, CFileDialog> {
 public:
  CDlgFlOut();

  int m_nNew = 0;             // 0: add to the file, any other number: a new file
  int m_nFormat = 0;          // 0: dat, 1: ymd, 2: csv; any other turns no button on
  int m_bFacility = 0;        // other than 0: csv bears the label of public facilities
  int m_nElevation = 0;       // provisional elevation, to be shown
  CString m_strSelectedPath;  // of the file selected last, in lower case; empty if none was

  static std::span<const Message<CDlgFlOut>> Messages();

 private:
  void OnInitDialog() override;
  void OnPaint() override { ShowFields(); }
  void OnFileNameChange() override;
  void OnFolderChange() override { ShowFields(); }
  void OnNew(int id);
  void OnFormat(int id);

  void TakeFacts(const CString& facts);
  void ShowFields();
  void LabelAccept();
};

}  // namespace orreryui

#endif  // ORRERYUI_RETRIEVAL_RESULT_FILE_DIALOG_H_
