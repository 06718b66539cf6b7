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
  bool shows_only() const { return shows_only_; }

  // The text beside the swatch.
  void SetCaption(const QString& caption) { caption_ = caption; }

  // What a screen reader says: the caption and the colour. It is made when it is asked for, since
  // telling Qt of a name costs more than drawing the swatch.
  QString Name() const;

 protected:
  bool event(QEvent* event) override;
  bool hitButton(const QPoint& place) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Description() const;  // of what is seen

  bool shows_only_ = false;
  SwatchView swatch_;
  QString caption_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_SWATCH_BUTTON_H_
