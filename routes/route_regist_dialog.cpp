#include "routes/route_regist_dialog.h"

#include "frame/split.h"
#include "points/packed_point.h"
#include "points/point_boxes.h"
#include "routes/map_mode.h"
#include "templates/route_regist.h"

namespace orreryui {

using namespace route_regist;

CDlgRouteRegist::CDlgRouteRegist() : DialogWithMessages(kTemplate) {}

void CDlgRouteRegist::DoDataExchange(DataExchange& exchange) { exchange.Text(kName, m_strName); }

void CDlgRouteRegist::OnInitDialog() {
  if (m_strMode == kAreaMode) {
    SetDlgItemText(kNameLabel, "エリア"_sj);
    SetWindowText("            エリア登録"_sj);
  }
  ListPoints(*this, kPoints, m_aPacked);
  CString count;
  count.Format("%d", GetCount(kPoints));
  count += "地点"_sj;
  SetDlgItemText(kCount, count);
  m_strName = TextBefore(GetLBText(kPoints, 0), '#') + "(計"_sj + count + ")";
  SetDlgItemText(kName, m_strName);
}

}  // namespace orreryui
