#include "front_ends/qt/dialog_scale.h"

#include <QString>
#include <algorithm>
#include <cmath>

#include "front_ends/qt/text_fit.h"

namespace orreryui {
namespace {

constexpr double kMostGrowth = 1.6;

}  // namespace

DialogScale DialogScale::Of(const QFont& font) {
  const QString latin = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
  const double average = TextSize(latin, font).width() / double(latin.size());
  const double full_width = TextSize(QStringLiteral("国"), font).width();
  return {std::max(average / 4, full_width / 8), double(LineHeight(font)) / 8};
}

DialogScale DialogScale::LowFor(const DialogLayout& layout, QSize room, const QFont& font) const {
  const double wanted = double(room.height()) / layout.height;
  const bool helps = wanted < y && wanted >= double(LetterHeight(font)) / 8;
  return {x, helps ? wanted : y};
}

DialogScale DialogScale::MostFor(const DialogLayout& layout, QSize room) const {
  const QPoint corner = ToPixels(layout.width, layout.height);
  return {x * std::clamp(double(room.width()) / corner.x(), 1.0, kMostGrowth),
          y * std::clamp(double(room.height()) / corner.y(), 1.0, kMostGrowth)};
}

QPoint DialogScale::ToPixels(int x_units, int y_units) const {
  return {int(std::lround(x_units * x)), int(std::lround(y_units * y))};
}

QRect DialogScale::ToPixels(const DialogRect& place) const {
  const QPoint corner = ToPixels(place.x, place.y);
  const QPoint end = ToPixels(place.x + place.width, place.y + place.height);
  return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

QPoint DialogScale::ToUnits(QSize pixels) const {
  return {int(std::floor(pixels.width() / x)), int(std::floor(pixels.height() / y))};
}

int DialogScale::ColumnToPixels(int width) const {
  // On the screen for which columns are measured, a dialog unit is one and a half pixels wide.
  return int(std::lround(width * x / 1.5));
}

}  // namespace orreryui
