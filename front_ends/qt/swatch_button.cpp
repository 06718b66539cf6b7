#include "front_ends/qt/swatch_button.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace orreryui {

QColor ToQColor(std::uint32_t colour) {
  return QColor(int(colour & 0xFF), int(colour >> 8 & 0xFF), int(colour >> 16 & 0xFF));
}

std::uint32_t FromQColor(const QColor& color) {
  return std::uint32_t(color.red()) | std::uint32_t(color.green()) << 8 |
         std::uint32_t(color.blue()) << 16;
}

SwatchButton::SwatchButton(QWidget* parent) : QPushButton(parent) { setAutoDefault(false); }

void SwatchButton::ShowSwatch(const SwatchView& swatch) {
  if (swatch.colour == swatch_.colour && swatch.frame == swatch_.frame) return;
  swatch_ = swatch;
  NameForScreenReaders();
  update();
}

void SwatchButton::SetCaption(const QString& caption) {
  caption_ = caption;
  NameForScreenReaders();
}

void SwatchButton::NameForScreenReaders() {
  QString name = caption_;
  if (swatch_.colour) {
    const QColor color = ToQColor(*swatch_.colour);
    name += QStringLiteral(" 赤%1 緑%2 青%3").arg(color.red()).arg(color.green()).arg(color.blue());
  } else {
    name += QStringLiteral(" 色なし");
  }
  setAccessibleName(name.trimmed());
}

void SwatchButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect whole = rect();
  painter.fillRect(whole, swatch_.frame
                              ? ToQColor(*swatch_.frame)
                              : palette().color(isDown() ? QPalette::Highlight : QPalette::Mid));
  const int frame = swatch_.frame ? 3 : 1;
  const QRect inside = whole.adjusted(frame, frame, -frame, -frame);
  painter.fillRect(inside,
                   swatch_.colour ? ToQColor(*swatch_.colour) : palette().color(QPalette::Button));
  if (!hasFocus()) return;
  // Two nested lines, one light and one dark, are seen on every colour.
  painter.setPen(Qt::white);
  painter.drawRect(inside.adjusted(1, 1, -2, -2));
  painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
  painter.drawRect(inside.adjusted(1, 1, -2, -2));
}

}  // namespace orreryui
