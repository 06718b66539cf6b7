// A push button that shows a colour instead of a text.
#ifndef ORRERYUI_FRONT_ENDS_QT_SWATCH_BUTTON_H_
#define ORRERYUI_FRONT_ENDS_QT_SWATCH_BUTTON_H_

#include <QColor>
#include <QPushButton>
#include <cstdint>

#include "platform/front_end.h"

namespace orreryui {

// Between Qt's colours and those of the seam, 0x00BBGGRR.
QColor ToQColor(std::uint32_t colour);
std::uint32_t FromQColor(const QColor& color);

class SwatchButton : public QPushButton {
 public:
  explicit SwatchButton(QWidget* parent);

  void ShowSwatch(const SwatchView& swatch);

  // Takes no clicks and no focus from now on.
  void OnlyShow();

  // The text beside the swatch; a screen reader says it and the colour.
  void SetCaption(const QString& caption);

 protected:
  bool event(QEvent* event) override;
  bool hitButton(const QPoint& place) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void NameForScreenReaders();
  QString Description() const;  // of what is seen

  bool shows_only_ = false;
  SwatchView swatch_;
  QString caption_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_SWATCH_BUTTON_H_
