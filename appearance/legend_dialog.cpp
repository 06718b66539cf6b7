#include "appearance/legend_dialog.h"

#include "appearance/palette_file.h"
#include "appearance/palette_list.h"
#include "templates/legend.h"

namespace orreryui {

using namespace legend;

namespace {

// A band has the colour of its lower end: swatch i that of row i of a palette file.
constexpr std::size_t kBands = 10;
constexpr std::size_t kLakes = 10;

}  // namespace

CDlgLegend::CDlgLegend() : DialogWithMessages(kTemplate) {}

void CDlgLegend::OnPaint() {
  if (m_nLoaded == -1) {
    m_nLoaded = 1;
    LoadColors();
  }
  for (std::size_t i = 0; i < m_crColor.size(); ++i) SetSwatch(kSwatches[i], m_crColor[i]);
}

void CDlgLegend::LoadColors() {
  const CString line = ReadPaletteLine(m_strDir, m_nPalette);
  if (line.IsEmpty()) return;
  const PaletteEntry palette = PaletteEntryOf(line);
  SetDlgItemText(kName, palette.name);
  m_crColor[kLakes] = m_crLake;
  const auto points = ReadPalette(m_strDir + palette.file);
  if (!points) return;
  const LevelColours colours = InterpolatedColours(*points);
  for (std::size_t i = 0; i < kBands; ++i) {
    m_crColor[i] = colours[static_cast<std::size_t>(LevelOf(kRowElevations[i]))];
  }
}

}  // namespace orreryui
