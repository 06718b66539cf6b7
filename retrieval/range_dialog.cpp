#include "retrieval/range_dialog.h"

#include "templates/range.h"

namespace orreryui {

using namespace range;

std::span<const Message<CDlgRange>> CDlgRange::Messages() {
  static constexpr Message<CDlgRange> kMessages[] = {
      {kEnlarge, Event::kClick, &CDlgRange::OnEnlarge},
  };
  return kMessages;
}

CDlgRange::CDlgRange() : DialogWithMessages(kTemplate) {}

void CDlgRange::OnInitDialog() {
  SetDlgItemText(kNorth, m_strNorth);
  SetDlgItemText(kWest, m_strWest);
  SetDlgItemText(kSouth, m_strSouth);
  SetDlgItemText(kEast, m_strEast);
}

void CDlgRange::OnEnlarge() { EndDialog(IDOK); }

}  // namespace orreryui
