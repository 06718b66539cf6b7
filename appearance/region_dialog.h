// The region of the prefecture map: 48 buttons that stay down, laid out as a map of Japan. Either
// the user picks one prefecture or the whole, or any set of prefectures.
//
// After a click the button of the whole is down exactly when no prefecture's is.
#ifndef ORRERYUI_APPEARANCE_REGION_DIALOG_H_
#define ORRERYUI_APPEARANCE_REGION_DIALOG_H_

#include "appearance/region_string.h"
#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgRegion : public DialogWithMessages<CDlgRegion> {
 public:
  CDlgRegion();

  RegionState m_nState = {};  // which buttons are down
  int m_nSingle = 0;          // 1: one button alone may be down

  static std::span<const Message<CDlgRegion>> Messages();

 private:
  void OnInitDialog() override;
  void OnSlot(int id);

  void ShowState();
};

// What a click on the button of `slot` makes of the state.
void ClickSlot(RegionState& state, std::size_t slot, bool single);

}  // namespace orreryui

#endif  // ORRERYUI_APPEARANCE_REGION_DIALOG_H_
