// A multi-line edit that may be too low for two lines. It then looks like a line edit: its lines
// stand one behind another in a single row, with a mark at each line break. The document keeps its
// lines; only where they are drawn, and where the mouse finds them, is different.
#ifndef ORRERYUI_FRONT_ENDS_QT_ROW_EDIT_H_
#define ORRERYUI_FRONT_ENDS_QT_ROW_EDIT_H_

#include <QPainter>
#include <QStyleOptionFrame>
#include <QTextBlock>
#include <vector>

#include "front_ends/qt/part_edit.h"

namespace orreryui {

class RowEdit : public PartEdit {
 public:
  explicit RowEdit(QWidget* parent);

  // To be called before the edit is shown. A row that fits stands at the side of `alignment`.
  void ShowInOneRow(Qt::Alignment alignment);

  // The height in pixels of a box that holds a row.
  int RowHeight() const;

  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  using PaintContext = QAbstractTextDocumentLayout::PaintContext;

  // A line of the text in the row.
  struct Piece {
    QTextBlock block;
    qreal x;      // from the beginning of the row
    qreal width;  // without the mark behind it
  };

  QStyleOptionFrame Panel() const;
  QRect Inside() const;  // of the panel, where text is seen
  qreal MarkWidth() const { return fontMetrics().height() * 0.75; }
  Piece PieceAt(const QTextBlock& block, qreal x) const;
  Piece NextTo(const Piece& piece) const;
  Piece LastPiece() const;
  QRectF CursorInRow() const;
  QPointF InDocument(const QPointF& place) const;

  void FollowCursor();
  std::vector<Piece> SeenPieces() const;
  QPointF PlaceOf(const Piece& piece) const;  // of its layout
  void DrawText(QPainter& painter, const Piece& piece, const PaintContext& context) const;
  void DrawMark(QPainter& painter, const Piece& piece, const PaintContext& context) const;

  bool in_one_row_ = false;
  Qt::Alignment alignment_ = Qt::AlignLeft;
  qreal left_ = 0;  // where the row began when it was last drawn
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_ROW_EDIT_H_
