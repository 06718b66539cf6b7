#include "front_ends/qt/swatch_button.h"

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

class AccessibleSwatch : public QAccessibleWidget {
 public:
  explicit AccessibleSwatch(SwatchButton* swatch)
      : QAccessibleWidget(swatch,
                          swatch->shows_only() ? QAccessible::Graphic : QAccessible::Button),
        swatch_(*swatch) {}

  QString text(QAccessible::Text what) const override {
    return what == QAccessible::Name ? swatch_.Name() : QAccessibleWidget::text(what);
  }
  QStringList actionNames() const override {
    return QStringList(pressAction()) << QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    if (swatch_.isEnabled() && !swatch_.shows_only()) swatch_.click();
  }

 private:
  SwatchButton& swatch_;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* const swatch = dynamic_cast<SwatchButton*>(object);
  return swatch != nullptr ? new AccessibleSwatch(swatch) : nullptr;
}

}  // namespace

QColor ToQColor(std::uint32_t colour) {
  return QColor(int(colour & 0xFF), int(colour >> 8 & 0xFF), int(colour >> 16 & 0xFF));
}

std::uint32_t FromQColor(const QColor& color) {
  return std::uint32_t(color.red()) | std::uint32_t(color.green()) << 8 |
         std::uint32_t(color.blue()) << 16;
}

SwatchButton::SwatchButton(QWidget* parent) : QPushButton(parent) {
  QAccessible::installFactory(MakeAccessible);
  setAutoDefault(false);
}

void SwatchButton::ShowSwatch(const SwatchView& swatch) {
  if (swatch.colour == swatch_.colour && swatch.frame == swatch_.frame &&
      swatch.note == swatch_.note) {
    return;
  }
  swatch_ = swatch;
  if (QAccessible::isActive()) {
    QAccessibleEvent changed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
  }
  update();
}

void SwatchButton::OnlyShow() {
  shows_only_ = true;
  setFocusPolicy(Qt::NoFocus);
}

QString SwatchButton::Name() const {
  return QString(caption_ + QLatin1Char(' ') + Description()).simplified();
}

QString SwatchButton::Description() const {
  if (!swatch_.colour) return QStringLiteral("色なし");
  const QColor color = ToQColor(*swatch_.colour);
  const QString parts =
      QStringLiteral("赤%1 緑%2 青%3").arg(color.red()).arg(color.green()).arg(color.blue());
  return swatch_.note.empty() ? parts : parts + QLatin1Char('\n') + FromUtf8(swatch_.note);
}

// Swatches are many and tool tips few: one is made when it is asked for.
bool SwatchButton::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QPushButton::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Description(), this);
  return true;
}

bool SwatchButton::hitButton(const QPoint& place) const {
  return !shows_only_ && QPushButton::hitButton(place);
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
