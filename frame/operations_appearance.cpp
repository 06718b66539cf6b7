#include <orreryui/orreryui.h>

#include "appearance/legend_dialog.h"

namespace orreryui {

void OnLegendElevetion(int palette, CString folder, int lake_colour) {
  CDlgLegend dialog;
  dialog.m_nPalette = palette;
  dialog.m_strDir = folder;
  dialog.m_crLake = ColourOfArgument(lake_colour);
  dialog.DoModal();
}

}  // namespace orreryui
