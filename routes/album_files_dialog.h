// The points of an album, of a stored map or of a list of the host's, one of them in detail, and
// the choice how the host is to display them. A list of the host's can be stored as a new map,
// again and again; what was stored stays when the user gives up. A map that can't be stored changes
// nothing.
//
// The mode says what is shown: kRouteMode and kAreaMode are lists of the host's. Any other one is
// the path of a file, which shows as a route if its path holds the word of the route mode or is
// "RETURN", else as an album.
#ifndef ORRERYUI_ROUTES_ALBUM_FILES_DIALOG_H_
#define ORRERYUI_ROUTES_ALBUM_FILES_DIALOG_H_

#include <vector>

#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgAlbumFiles : public DialogWithMessages<CDlgAlbumFiles> {
 public:
  CDlgAlbumFiles();

  CString m_strMode;
  CString m_strDisplay;    // "AUTO", "MANUAL", or the host's word until the user chooses
  CString m_strFolder;     // the folder of the maps, with its separator
  CString m_strCaption1;   // the head of the dialog
  CString m_strCaption2;   // not shown for a route
  CString m_strCentreLat;  // of an area
  CString m_strCentreLon;
  std::vector<CString> m_aPacked;  // the packed points on show, in the list's order
  std::vector<CString> m_aLines;   // the lines of the host's list, or of the map stored last
  int m_nCount = 0;                // rows of the list

  static std::span<const Message<CDlgAlbumFiles>> Messages();

 private:
  void OnInitDialog() override;
  void OnSelectPoint();
  void OnRegister();
  void OnAutomatic();
  void OnManual();
  void OnEnd();

  void ShowKind();
  void LoadPoints();
};

// What stands before each bar of a host's list, up to the end marker or kMostListedPoints lines.
inline constexpr std::size_t kMostListedPoints = 100;
std::vector<CString> LinesOfList(CString list);

// The second caption of an area, by its shape (0 is a circle) and its size in km.
CString RangeOfArea(int shape, int size);

}  // namespace orreryui

#endif  // ORRERYUI_ROUTES_ALBUM_FILES_DIALOG_H_
