#include "host/palette_strip.h"

#include <QLocale>
#include <QPainter>
#include <array>

#include "appearance/palette_list.h"
#include "host/argument_text.h"

namespace orreryui::host {
namespace {

constexpr int kSideMargin = 26;  // half a caption at either end
constexpr int kBarHeight = 26;
constexpr std::array<int, 6> kCaptions = {1, 500, 1000, 2000, 3000, 4000};  // elevations

QColor ColourOnScreen(COLORREF colour) { return {Red(colour), Green(colour), Blue(colour)}; }

QString CaptionOf(int elevation) {
  return elevation == 1 ? "0 m" : QLocale(QLocale::English).toString(elevation) + " m";
}

}  // namespace

PaletteStrip::PaletteStrip() {
  setObjectName("palette");
  setFixedHeight(kBarHeight + 2 * fontMetrics().height() + 12);
}

void PaletteStrip::Show(const std::string& folder, int number) {
  std::string error;
  const CString path = ReadText(folder, 1, error);
  const PaletteEntry entry = PaletteEntryOf(ReadPaletteLine(path, number));
  const auto points = ReadPalette(path + entry.file);
  colours_ = InterpolatedColours(points);
  name_ = points.empty() ? "" : QString::fromStdString(TextOf(entry.name));
  setAccessibleName(name_.isEmpty() ? "No palette" : "Palette " + name_);
  update();
}

QRect PaletteStrip::Bar() const {
  return {kSideMargin, fontMetrics().height() + 4, width() - 2 * kSideMargin, kBarHeight};
}

int PaletteStrip::ColumnOf(int level) const {
  const QRect bar = Bar();
  return bar.left() + level * bar.width() / kLevels;
}

void PaletteStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect bar = Bar();
  painter.drawText(bar.left(), fontMetrics().ascent(), accessibleName());
  if (name_.isEmpty()) return;
  for (int level = 0; level < kLevels; ++level) {
    const int left = ColumnOf(level);
    const COLORREF colour = colours_[static_cast<std::size_t>(level)];
    painter.fillRect(left, bar.top(), ColumnOf(level + 1) - left, bar.height(),
                     ColourOnScreen(colour));
  }
  painter.drawRect(bar.adjusted(-1, -1, 0, 0));
  for (const int elevation : kCaptions) {
    const QRect place(ColumnOf(LevelOf(elevation)) - kSideMargin, bar.bottom() + 4, 2 * kSideMargin,
                      fontMetrics().height());
    painter.drawText(place, Qt::AlignHCenter, CaptionOf(elevation));
  }
}

}  // namespace orreryui::host
