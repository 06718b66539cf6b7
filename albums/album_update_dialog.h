// An album: the user may change the texts of its registered point, looks at its data and edits them
// in a text editor. The library changes no line itself, and shows what the editor changed when the
// album is opened anew. Nor does it delete anything: how the run ended tells the host what to do.
//
//   IDOK with the code it began with   the texts of the registered point, which may have changed
//   IDOK with code 0                   the texts as they came in, if another code came in
//   another end with code -1           the album is to be deleted, unless no window could be shown
#ifndef ORRERYUI_ALBUMS_ALBUM_UPDATE_DIALOG_H_
#define ORRERYUI_ALBUMS_ALBUM_UPDATE_DIALOG_H_

#include <vector>

#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgAlbumUpdate : public DialogWithMessages<CDlgAlbumUpdate> {
 public:
  CDlgAlbumUpdate();

  int m_nCode = 0;
  CString m_strAlbumState;  // "new": the album file is made, or emptied, at the start
  CString m_strAlbumFile;   // path of the album file
  CString m_strPlace;       // the registered point; read from its boxes at OK only
  CString m_strItem;
  CString m_strLongitude;
  CString m_strLatitude;
  CString m_strEditor;             // the command of the text editor
  std::vector<CString> m_aPacked;  // the packed points of the data lines, in the list's order
  int m_nCount = 0;                // rows of the list
  CString m_strTextFile;           // of the selected data line

  static std::span<const Message<CDlgAlbumUpdate>> Messages();

 private:
  void OnInitDialog() override;
  void DoDataExchange(DataExchange& exchange) override;
  void OnSelectData();
  void OnPreviewText();
  void OnEditAlbum();
  void OnDeleteAlbum();
  void OnEndUpdate();

  void LoadData();
};

}  // namespace orreryui

#endif  // ORRERYUI_ALBUMS_ALBUM_UPDATE_DIALOG_H_
