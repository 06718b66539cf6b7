// The confirmation of a new map: shows its points and proposes a name, which the user may change.
// Stores nothing.
#ifndef ORRERYUI_ROUTES_ROUTE_REGIST_DIALOG_H_
#define ORRERYUI_ROUTES_ROUTE_REGIST_DIALOG_H_

#include <vector>

#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgRouteRegist : public DialogWithMessages<CDlgRouteRegist> {
 public:
  CDlgRouteRegist();

  CString m_strMode;               // "AreaMap" for an area, else a route
  std::vector<CString> m_aPacked;  // the packed points of the map
  CString m_strName;               // after IDOK the text of the box, which may be any

  static std::span<const Message<CDlgRouteRegist>> Messages() { return {}; }

 private:
  void OnInitDialog() override;
  void DoDataExchange(DataExchange& exchange) override;
};

}  // namespace orreryui

#endif  // ORRERYUI_ROUTES_ROUTE_REGIST_DIALOG_H_
