// The legend of the relief map: a palette's name, and the colour of each band of elevation. It only
// shows. Bands that the palette leaves out get colours between those of their neighbours.
#ifndef ORRERYUI_APPEARANCE_LEGEND_DIALOG_H_
#define ORRERYUI_APPEARANCE_LEGEND_DIALOG_H_

#include <array>
#include <optional>

#include "appearance/colour.h"
#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgLegend : public DialogWithMessages<CDlgLegend> {
 public:
  CDlgLegend();

  // What the swatches C1 to C11 show, from index 0. Without a palette they are empty.
  std::array<std::optional<COLORREF>, 11> m_crColor;
  COLORREF m_crLake = kBlack;
  int m_nLoaded = -1;  // 1 once the first paint has loaded the colours
  int m_nPalette = 0;  // the palette's number in the list
  CString m_strDir;    // folder of the palette files, with its separator

  static std::span<const Message<CDlgLegend>> Messages() { return {}; }

 private:
  void OnPaint() override;

  void LoadColors();
};

}  // namespace orreryui

#endif  // ORRERYUI_APPEARANCE_LEGEND_DIALOG_H_
