// The data files of the host: lets the user choose one, add a name to the list of data files or
// take one off it, and say whether the common area is shown as well. The list is the file
// "BINDER.DAT"; what the user adds or takes off is in it at once, and stays when the user gives up.
// Of a name that was typed the first line counts. One that readers of the list wouldn't find, a
// list that couldn't be read and a disk that refuses make the click one that has no effect.
#ifndef ORRERYUI_ALBUMS_DATA_SOURCE_DIALOG_H_
#define ORRERYUI_ALBUMS_DATA_SOURCE_DIALOG_H_

#include "albums/data_file_list.h"
#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgDataSource : public DialogWithMessages<CDlgDataSource> {
 public:
  CDlgDataSource();

  int m_nSelected = 0;      // chosen entry: 0 the common area, 1 and up the names in file order
  int m_nCount = 1;         // entries, the common area included
  CString m_strCommonArea;  // "on": the common area is shown as well
  CString m_strFolder;      // folder of the list, with its separator
  CString m_strFile;        // text of the chosen entry
  DataFileList m_aFiles;    // the list: the entry behind the common area is its first name

  static std::span<const Message<CDlgDataSource>> Messages();

 private:
  void OnInitDialog() override;
  void OnSelectFile();
  void OnRegisterFile();
  void OnDeleteFile();
  void OnToggleCommonArea();

  CString ListPath() const;
  void LoadFiles();
  void ShowPosition();
  void ShowNote();
};

}  // namespace orreryui

#endif  // ORRERYUI_ALBUMS_DATA_SOURCE_DIALOG_H_
