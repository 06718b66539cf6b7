// A new album: the user names the place that the host has chosen, and ties files and memos to it.
// Each addition is a line of the album file at once, the first one starting the file anew; the
// lines stay when the user gives up. An addition that lacks a part, or can't be written, changes
// nothing.
//
// The fields that have a box follow it whenever it loses the focus.
#ifndef ORRERYUI_ALBUMS_ALBUM_REGIST_DIALOG_H_
#define ORRERYUI_ALBUMS_ALBUM_REGIST_DIALOG_H_

#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgAlbumRegist : public DialogWithMessages<CDlgAlbumRegist> {
 public:
  CDlgAlbumRegist();

  int m_nCode = 0;     // the host's, for the result
  int m_nDataNo = 1;   // number of the data line that comes next; 1 starts the file
  CString m_strPlace;  // the registered point: place name, item
  CString m_strItem;
  CString m_strLatitude;  // of the registered point and of every data line
  CString m_strLongitude;
  CString m_strMemo1;  // the data line that comes next: its place, item and files
  CString m_strMemo2;
  CString m_strTextFile;
  CString m_strPictureFile;
  CString m_strAlbumFile;  // path of the album file
  CString m_strAlbumNo;    // is shown, and nothing else

  static std::span<const Message<CDlgAlbumRegist>> Messages();

 private:
  void OnInitDialog() override;
  void OnLeaveBox(int id);
  void OnChooseTextFile();
  void OnChoosePicture();
  void OnPreviewText();
  void OnAddData();
  void OnGiveUp();

  bool LacksAPart() const;
  const CString& StartOfChooser(const CString& file) const;
};

}  // namespace orreryui

#endif  // ORRERYUI_ALBUMS_ALBUM_REGIST_DIALOG_H_
