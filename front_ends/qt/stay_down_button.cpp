#include "front_ends/qt/stay_down_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include "front_ends/qt/contrast.h"

namespace orreryui {
namespace {

constexpr double kContrastOfFill = 4;  // 3, and what the light and shade of a style may take
constexpr double kContrastOfText = 4.5;
constexpr int kFrame = 2;  // pixels, of the style's own frame

// Makes the highlight the colour of buttons.
void HighlightButton(QPalette& palette, QPalette::ColorGroup group) {
  const QColor fill = Apart(palette.color(group, QPalette::Highlight),
                            palette.color(group, QPalette::Button), kContrastOfFill);
  palette.setColor(QPalette::Button, fill);
  palette.setColor(QPalette::ButtonText,
                   Apart(palette.color(group, QPalette::HighlightedText), fill, kContrastOfText));
}

}  // namespace

StayDownButton::StayDownButton(QWidget* parent) : QPushButton(parent) {
  setAutoDefault(false);
  setCheckable(true);
}

void StayDownButton::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  QPalette& colours = option.palette;
  if (isChecked()) HighlightButton(colours, isEnabled() ? QPalette::Active : QPalette::Disabled);
  const QRect inside = rect().adjusted(kFrame, kFrame, -kFrame, -kFrame);

  QStylePainter painter(this);
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  if (isChecked()) painter.fillRect(inside, colours.color(QPalette::Button));
  painter.drawControl(QStyle::CE_PushButtonLabel, option);
  if (!hasFocus()) return;
  painter.setPen(colours.color(QPalette::ButtonText));
  painter.drawRect(inside.adjusted(1, 1, -2, -2));
}

}  // namespace orreryui
