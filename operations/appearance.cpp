#include <orreryui/orreryui.h>

#include "appearance/legend_dialog.h"
#include "appearance/map_type_dialog.h"
#include "appearance/palette_dialog.h"
#include "operations/result_string.h"
#include "operations/run_operation.h"

namespace orreryui {
namespace {

void AddColour(ResultString& result, COLORREF colour) {
  result.Number(Red(colour)).Number(Green(colour)).Number(Blue(colour));
}

}  // namespace

CString OnMapTypeSet(int palette, int kind, int fill, int coast, int coast_on_tint, CString folder,
                     CString region) {
  return RunOperation(CString(), [&] {
    MapTypeSettings given = UnpackMapType(kind, fill, coast);
    given.m_nPalette = palette;
    given.m_nCoastOnTint = coast_on_tint;
    given.m_strRegion = region;
    CDlgMapType dialog;
    static_cast<MapTypeSettings&>(dialog) = given;
    dialog.m_strDir = folder;
    if (dialog.DoModal() != IDOK) return CString();
    return ResultString()
        .Number(MapTypeDiffers(dialog, given) ? 1 : -1)
        .Number(dialog.m_nPalette)
        .Number(dialog.m_nMapKind)
        .Number(dialog.m_nTint)
        .Number(dialog.m_nMethod)
        .Number(0)
        .Number(dialog.m_nPrefProjection)
        .Number(dialog.m_nCoastTopo)
        .Number(dialog.m_nCoastPref)
        .Number(HostProjection(dialog.m_nJapanProjection))
        .End(dialog.m_strRegion);
  });
}

CString OnMapPalleteSet(int selected, CString editor, CString folder, int, int lake_colour,
                        int background_colour) {
  return RunOperation(CString(), [&] {
    CDlgPalette dialog;
    dialog.m_nSelect = selected;
    dialog.m_strEditor = editor;
    dialog.m_strDir = folder;
    dialog.m_crLake = ColourOfArgument(lake_colour);
    dialog.m_crBack = ColourOfArgument(background_colour);
    if (dialog.DoModal() != IDOK) return CString();
    ResultString result;
    result.Number(dialog.m_nSelect);
    AddColour(result, dialog.m_crSea);
    AddColour(result, dialog.m_crLake);
    AddColour(result, dialog.m_crBack);
    return result.End("");
  });
}

void OnLegendElevetion(int palette, CString folder, int lake_colour) {
  RunOperation([&] {
    CDlgLegend dialog;
    dialog.m_nPalette = palette;
    dialog.m_strDir = folder;
    dialog.m_crLake = ColourOfArgument(lake_colour);
    dialog.DoModal();
  });
}

}  // namespace orreryui
