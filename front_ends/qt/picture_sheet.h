// The part of a preview that shows the picture.
#ifndef ORRERYUI_FRONT_ENDS_QT_PICTURE_SHEET_H_
#define ORRERYUI_FRONT_ENDS_QT_PICTURE_SHEET_H_

#include <QImage>
#include <QLabel>
#include <QPixmap>

namespace orreryui {

// Shows a picture, or a text, in its middle. The picture keeps its proportions and is never
// enlarged: one of its pixels takes one of the screen at most.
class PictureSheet : public QLabel {
 public:
  explicit PictureSheet(QWidget* parent);

  void ShowText(const QString& text);
  // A screen reader says the description.
  void ShowPicture(const QImage& picture, const QString& description);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Fit(QSize size);

  QImage picture_;
  QPixmap fitted_;  // the picture as it was painted last
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_PICTURE_SHEET_H_
