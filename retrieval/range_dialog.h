// The range that the user drew on the map with the mouse: shows its corners and asks what to do
// with it. Ends with IDOK if the enlarged map of the range is wanted.
#ifndef ORRERYUI_RETRIEVAL_RANGE_DIALOG_H_
#define ORRERYUI_RETRIEVAL_RANGE_DIALOG_H_

#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgRange : public DialogWithMessages<CDlgRange> {
 public:
  CDlgRange();

  // The corners, as the host wrote them; shown unchanged.
  CString m_strWest;   // longitude, north-west corner
  CString m_strNorth;  // latitude, north-west corner
  CString m_strEast;   // longitude, south-east corner
  CString m_strSouth;  // latitude, south-east corner

  static std::span<const Message<CDlgRange>> Messages();

 private:
  void OnInitDialog() override;
  void OnEnlarge();
};

}  // namespace orreryui

#endif  // ORRERYUI_RETRIEVAL_RANGE_DIALOG_H_
