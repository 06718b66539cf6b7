// The stored maps of one kind: the user chooses one, looks at its points, edits its member file in
// a text editor, and says how the host is to display it. The library changes no point itself, and
// shows what the editor changed when the map is chosen anew.
#ifndef ORRERYUI_ROUTES_ROUTE_SELECT_DIALOG_H_
#define ORRERYUI_ROUTES_ROUTE_SELECT_DIALOG_H_

#include <vector>

#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgRouteSelect : public DialogWithMessages<CDlgRouteSelect> {
 public:
  CDlgRouteSelect();

  int m_nKind = 0;                  // 0 the route maps, any other number the area maps
  CString m_strDisplay;             // "AUTO", "MANUAL", or the host's word until the user chooses
  CString m_strEditor;              // the command of the text editor
  CString m_strFolder;              // the folder of the maps, with its separator
  std::vector<CString> m_aEntries;  // the entries of the master list, in the list's order
  int m_nMapCount = 0;              // entries
  int m_nSelected = -1;             // the map chosen last, by its entry; -1 if none was
  CString m_strName;                // its name and its member file
  CString m_strPath;
  std::vector<CString> m_aPacked;  // its packed points, in the list's order
  int m_nPointCount = 0;           // rows of the list of points

  static std::span<const Message<CDlgRouteSelect>> Messages();

 private:
  void OnInitDialog() override;
  void OnSelectMap();
  void OnSelectPoint();
  void OnEditData();
  void OnUpdateList();
  void OnAutomatic();
  void OnManual();

  void LoadMaps();
  void LoadPoints();
};

}  // namespace orreryui

#endif  // ORRERYUI_ROUTES_ROUTE_SELECT_DIALOG_H_
