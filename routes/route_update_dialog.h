// New names for the stored maps of one kind, and their deletion together with their member files.
// Each change is on the disk at once, whichever way the dialog ends: IDOK asks the caller to read
// the list anew. A map that has gone meanwhile, a member file that can't be removed, a name that
// the list can't hold and a disk that refuses make the click one that has no effect.
#ifndef ORRERYUI_ROUTES_ROUTE_UPDATE_DIALOG_H_
#define ORRERYUI_ROUTES_ROUTE_UPDATE_DIALOG_H_

#include "platform/dialogs/dialog.h"
#include "routes/master_list.h"

namespace orreryui {

class CDlgRouteUpdate : public DialogWithMessages<CDlgRouteUpdate> {
 public:
  CDlgRouteUpdate();

  int m_nKind = 0;        // 0 the route maps, any other number the area maps
  CString m_strFolder;    // the folder of the maps, with its separator
  MasterList m_aEntries;  // as they were read last; the list box shows them in their order
  int m_nCount = 0;       // entries
  int m_nSelected = -1;   // the entry that the buttons act on; a new name leaves it, a deletion not
  CString m_strName;      // its name, then the text of the box
  CString m_strPath;      // its member file

  static std::span<const Message<CDlgRouteUpdate>> Messages();

 private:
  void OnInitDialog() override { LoadEntries(); }
  void OnSelectEntry();
  void OnDeleteEntry();
  void OnRenameEntry();

  CString ListPath() const;
  void LoadEntries();
};

}  // namespace orreryui

#endif  // ORRERYUI_ROUTES_ROUTE_UPDATE_DIALOG_H_
