#include "front_ends/qt/contrast.h"

#include <algorithm>
#include <cmath>

namespace orreryui {
namespace {

double Linear(double part) {
  return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

// `part` of the way from one colour to the other.
QColor Between(const QColor& from, const QColor& to, double part) {
  const auto mixed = [part](int a, int b) { return int(std::lround(a + (b - a) * part)); };
  return {mixed(from.red(), to.red()), mixed(from.green(), to.green()),
          mixed(from.blue(), to.blue())};
}

}  // namespace

double Contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor Apart(const QColor& wanted, const QColor& from, double contrast) {
  constexpr int kSteps = 32;
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  for (int step = 0; step <= kSteps; ++step) {
    for (const QColor& end : {black, white}) {
      const QColor color = Between(wanted, end, double(step) / kSteps);
      if (Contrast(color, from) >= contrast) return color;
    }
  }
  return Contrast(black, from) > Contrast(white, from) ? black : white;
}

}  // namespace orreryui
