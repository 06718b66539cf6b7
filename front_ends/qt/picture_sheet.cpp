#include "front_ends/qt/picture_sheet.h"

#include <QPainter>

namespace orreryui {
namespace {

// Seen where a picture is transparent, whatever its colours and the palette.
void PaintGround(QPainter& painter, const QRectF& place) {
  painter.fillRect(place, Qt::white);
  painter.fillRect(place, QBrush(Qt::lightGray, Qt::Dense4Pattern));
}

QSize Fitted(QSize picture, QSize room) {
  return picture.scaled(room.boundedTo(picture), Qt::KeepAspectRatio).expandedTo({1, 1});
}

}  // namespace

PictureSheet::PictureSheet(QWidget* parent) : QLabel(parent) {
  constexpr int kLeast = 100;
  setMinimumSize(kLeast, kLeast);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setForegroundRole(QPalette::Text);
  setAlignment(Qt::AlignCenter);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAccessibleName(QStringLiteral("プレビュー"));
}

void PictureSheet::ShowText(const QString& text) {
  ShowPicture(QImage(), text);
  setText(text);
}

void PictureSheet::ShowPicture(const QImage& picture, const QString& description) {
  picture_ = picture;
  fitted_ = QPixmap();
  clear();
  setAccessibleDescription(description);
}

void PictureSheet::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (picture_.isNull()) return;
  constexpr int kMargin = 4;
  const QRectF room = contentsRect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const qreal ratio = devicePixelRatioF();
  Fit(Fitted(picture_.size(), (room.size() * ratio).toSize()));
  fitted_.setDevicePixelRatio(ratio);
  QRectF place(QPointF(), fitted_.deviceIndependentSize());
  place.moveCenter(room.center());
  place.moveTo((place.topLeft() * ratio).toPoint() / ratio);
  QPainter painter(this);
  if (picture_.hasAlphaChannel()) PaintGround(painter, place);
  painter.drawPixmap(place.topLeft(), fitted_);
}

void PictureSheet::Fit(QSize size) {
  if (fitted_.size() == size) return;
  fitted_ =
      QPixmap::fromImage(picture_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

}  // namespace orreryui
