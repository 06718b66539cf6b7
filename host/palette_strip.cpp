#include "host/palette_strip.h"

#include <orreryui/utf8.h>

#include <QFile>
#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <optional>
#include <vector>

namespace orreryui::host {
namespace {

constexpr int kSideMargin = 26;  // half a caption at either end
constexpr int kBarHeight = 26;
constexpr std::array<int, 6> kCaptions = {1, 500, 1000, 2000, 3000, 4000};  // elevations

struct Point {
  int level = 0;
  QColor colour;
};

QList<QByteArray> LinesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
}

// 1 is the land at 0 m.
int LevelOf(int elevation) {
  if (elevation == 1) return 1;
  return std::min(elevation / 15, PaletteStrip::kLevels - 1);
}

// A row has four numbers: the elevation in metres, red, green and blue.
std::optional<Point> PointOf(const QByteArray& line) {
  const QList<QByteArray> numbers = line.simplified().split(' ');
  if (line.startsWith(';') || numbers.size() < 4) return std::nullopt;
  return Point{LevelOf(numbers[0].toInt()),
               QColor(numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt())};
}

std::vector<Point> ReadPalette(const QString& path) {
  std::vector<Point> points;
  for (const QByteArray& line : LinesOf(path)) {
    if (const auto point = PointOf(line)) points.push_back(*point);
  }
  return points;
}

QColor Between(const Point& from, const Point& to, int level) {
  const auto blend = [&](int first, int last) {
    const double way = static_cast<double>(level - from.level) * (last - first);
    return static_cast<int>(first + way / std::max(to.level - from.level, 1));
  };
  return {blend(from.colour.red(), to.colour.red()), blend(from.colour.green(), to.colour.green()),
          blend(from.colour.blue(), to.colour.blue())};
}

QString CaptionOf(int elevation) {
  return elevation == 1 ? "0 m" : QLocale(QLocale::English).toString(elevation) + " m";
}

}  // namespace

PaletteStrip::PaletteStrip() {
  setObjectName("palette");
  setFixedHeight(kBarHeight + 2 * fontMetrics().height() + 12);
}

void PaletteStrip::Show(const std::string& folder, int number) {
  const QString path = QString::fromStdString(folder);
  const QByteArray entry = LinesOf(path + "PLTTFILE.DAT").value(number).trimmed();
  const int mark = static_cast<int>(entry.indexOf('$'));
  const auto points = ReadPalette(path + QString::fromStdString(ToUtf8(entry.mid(mark + 1))));
  name_ = points.empty() ? "" : QString::fromStdString(ToUtf8(entry.left(mark)));
  for (std::size_t i = 1; i < points.size(); ++i) {
    for (int level = points[i - 1].level; level <= points[i].level; ++level) {
      colours_[static_cast<std::size_t>(level)] = Between(points[i - 1], points[i], level);
    }
  }
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
    painter.fillRect(left, bar.top(), ColumnOf(level + 1) - left, bar.height(),
                     colours_[static_cast<std::size_t>(level)]);
  }
  painter.drawRect(bar.adjusted(-1, -1, 0, 0));
  for (const int elevation : kCaptions) {
    const QRect place(ColumnOf(LevelOf(elevation)) - kSideMargin, bar.bottom() + 4, 2 * kSideMargin,
                      fontMetrics().height());
    painter.drawText(place, Qt::AlignHCenter, CaptionOf(elevation));
  }
}

}  // namespace orreryui::host
