#include "front_ends/qt/row_edit.h"

#include <QDropEvent>
#include <QPainterPath>
#include <QStyle>
#include <QTextLayout>
#include <QWheelEvent>
#include <algorithm>

namespace orreryui {
namespace {

// The room that a line edit leaves beside its text.
constexpr int kMargin = 2;

QTextLine LaidOut(const QTextBlock& block) { return block.layout()->lineAt(0); }

bool Covers(const QTextCursor& cursor, int position) {
  return cursor.selectionStart() <= position && position < cursor.selectionEnd();
}

// The part of a selection that lies in `block`, which may reach beyond its ends.
QTextLayout::FormatRange RangeIn(const QTextBlock& block,
                                 const QAbstractTextDocumentLayout::Selection& selection) {
  QTextLayout::FormatRange range;
  range.start = selection.cursor.selectionStart() - block.position();
  range.length = selection.cursor.selectionEnd() - block.position() - range.start;
  range.format = selection.format;
  return range;
}

// An arrow that comes down and turns back to the left.
QPainterPath ArrowIn(const QRectF& room) {
  const qreal head = room.height() / 4;
  QPainterPath arrow(room.topRight());
  arrow.lineTo(room.right(), room.bottom() - head);
  arrow.lineTo(room.left(), room.bottom() - head);
  arrow.moveTo(room.left() + head, room.bottom() - 2 * head);
  arrow.lineTo(room.left(), room.bottom() - head);
  arrow.lineTo(room.left() + head, room.bottom());
  return arrow;
}

}  // namespace

RowEdit::RowEdit(QWidget* parent) : PartEdit(parent) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // Text begins where that of a line edit does.
  document()->setDocumentMargin(Inside().left() - frameWidth());
}

void RowEdit::ShowInOneRow(Qt::Alignment alignment) {
  alignment_ = alignment;
  if (in_one_row_) return viewport()->update();
  in_one_row_ = true;
  setFrameShape(QFrame::NoFrame);
  setWordWrapMode(QTextOption::NoWrap);
  document()->setDocumentMargin(0);
  viewport()->setAutoFillBackground(false);
  // What changes isn't where the document thinks.
  const auto draw = [this] { viewport()->update(); };
  connect(this, &QPlainTextEdit::updateRequest, viewport(), draw);
  connect(this, &QPlainTextEdit::cursorPositionChanged, viewport(), draw);
  connect(this, &QPlainTextEdit::selectionChanged, viewport(), draw);
}

int RowEdit::RowHeight() const {
  const QStyleOptionFrame panel = Panel();
  const QSize text(0, fontMetrics().height() + kMargin);
  return style()->sizeFromContents(QStyle::CT_LineEdit, &panel, text, this).height();
}

QStyleOptionFrame RowEdit::Panel() const {
  QStyleOptionFrame panel;
  panel.initFrom(this);
  panel.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &panel, this);
  panel.state |= QStyle::State_Sunken;
  return panel;
}

QRect RowEdit::Inside() const {
  const QStyleOptionFrame panel = Panel();
  return style()
      ->subElementRect(QStyle::SE_LineEditContents, &panel, this)
      .adjusted(kMargin, 0, -kMargin, 0);
}

RowEdit::Piece RowEdit::PieceAt(const QTextBlock& block, qreal x) const {
  blockBoundingRect(block);  // lays it out, if that wasn't done yet
  return {block, x, LaidOut(block).horizontalAdvance()};
}

RowEdit::Piece RowEdit::NextTo(const Piece& piece) const {
  return PieceAt(piece.block.next(), piece.x + piece.width + MarkWidth());
}

RowEdit::Piece RowEdit::LastPiece() const {
  Piece piece = PieceAt(document()->firstBlock(), 0);
  while (piece.block.next().isValid()) piece = NextTo(piece);
  return piece;
}

// From the beginning of the row.
QRectF RowEdit::CursorInRow() const {
  const QTextCursor cursor = textCursor();
  Piece piece = PieceAt(document()->firstBlock(), 0);
  while (piece.block != cursor.block()) piece = NextTo(piece);
  const QTextLine line = LaidOut(piece.block);
  const QRect inside = Inside();
  return {piece.x + line.cursorToX(cursor.positionInBlock()), qreal(inside.top()),
          qreal(cursorWidth()), qreal(inside.height())};
}

QVariant RowEdit::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (!in_one_row_ || query != Qt::ImCursorRectangle) return PartEdit::inputMethodQuery(query);
  return CursorInRow().translated(left_, 0);
}

// The beginning of a row that is too long is seen until the cursor leaves it. Beside the cursor
// there is room for a mark.
void RowEdit::FollowCursor() {
  const QRectF inside = Inside();
  const Piece last = LastPiece();
  const qreal spare = inside.width() - (last.x + last.width) - cursorWidth();
  if (spare >= 0 || !hasFocus()) {
    const bool at_right = spare >= 0 && alignment_.testFlag(Qt::AlignRight);
    left_ = inside.left() + (at_right ? spare : 0);
    return;
  }
  const QRectF cursor = CursorInRow();
  const qreal mark = last.x > 0 ? MarkWidth() : 0;
  left_ = std::min(left_, inside.right() - mark - cursor.right());
  left_ = std::max(left_, inside.left() + mark - cursor.left());
  left_ = std::clamp(left_, inside.left() + spare, inside.left());
}

void RowEdit::paintEvent(QPaintEvent* event) {
  if (!in_one_row_) return PartEdit::paintEvent(event);
  FollowCursor();
  QPainter painter(viewport());
  const QStyleOptionFrame panel = Panel();
  style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, this);
  painter.setClipRect(Inside());
  painter.setPen(palette().color(QPalette::Text));
  const PaintContext context = getPaintContext();
  const std::vector<Piece> pieces = SeenPieces();
  for (const Piece& piece : pieces) DrawText(painter, piece, context);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Piece& piece : pieces) {
    if (piece.block.next().isValid()) DrawMark(painter, piece, context);
  }
}

// Up to the first one that ends beyond the box.
std::vector<RowEdit::Piece> RowEdit::SeenPieces() const {
  std::vector<Piece> pieces{PieceAt(document()->firstBlock(), 0)};
  const auto is_seen = [&](const Piece& piece) {
    return left_ + piece.x + piece.width < Inside().right();
  };
  while (is_seen(pieces.back()) && pieces.back().block.next().isValid()) {
    pieces.push_back(NextTo(pieces.back()));
  }
  return pieces;
}

// As in a line edit, all letters stand on the line on which the font's own do.
QPointF RowEdit::PlaceOf(const Piece& piece) const {
  const QFontMetrics metrics = fontMetrics();
  const QRect inside = Inside();
  const int top = inside.top() + (inside.height() - metrics.height() + 1) / 2;
  return {left_ + piece.x, top + metrics.ascent() - LaidOut(piece.block).ascent()};
}

void RowEdit::DrawText(QPainter& painter, const Piece& piece, const PaintContext& context) const {
  const QTextBlock& block = piece.block;
  QTextLayout& layout = *block.layout();
  QList<QTextLayout::FormatRange> ranges;
  for (const auto& selection : context.selections) ranges << RangeIn(block, selection);
  layout.draw(&painter, PlaceOf(piece), ranges);

  const int shown = context.cursorPosition;  // below -1: in a text that is being composed
  const bool composing = shown < -1 && !layout.preeditAreaText().isEmpty();
  if (!composing && !block.contains(shown)) return;
  const int column =
      composing ? layout.preeditAreaPosition() - (shown + 2) : shown - block.position();
  layout.drawCursor(&painter, PlaceOf(piece), column, cursorWidth());
}

// A mark that would be out of sight stands at the edge.
void RowEdit::DrawMark(QPainter& painter, const Piece& piece, const PaintContext& context) const {
  const QRectF inside = Inside();
  QRectF room(PlaceOf(piece) + QPointF(piece.width, 0),
              QSizeF(MarkWidth(), LaidOut(piece.block).height()));
  room.moveLeft(std::max(inside.left(), std::min(room.left(), inside.right() - room.width())));
  const bool selected = Covers(textCursor(), piece.block.position() + piece.block.length() - 1);
  const QPalette& colours = context.palette;
  painter.fillRect(room, colours.color(selected ? QPalette::Highlight : QPalette::Base));
  painter.setPen(colours.color(selected ? QPalette::HighlightedText : QPalette::PlaceholderText));
  const qreal across = room.width() / 5;
  const qreal down = room.height() / 4;
  painter.drawPath(ArrowIn(room.adjusted(across, down, -across, -down)));
}

void RowEdit::wheelEvent(QWheelEvent* event) {
  if (!in_one_row_) return PartEdit::wheelEvent(event);
  event->ignore();
}

// Where the document has what the row shows at `place`.
QPointF RowEdit::InDocument(const QPointF& place) const {
  if (!in_one_row_) return place;
  const qreal x = place.x() - left_;
  Piece piece = PieceAt(document()->firstBlock(), 0);
  while (piece.block.next().isValid() && x >= piece.x + piece.width + MarkWidth()) {
    piece = NextTo(piece);
  }
  const QRectF block = blockBoundingGeometry(piece.block).translated(contentOffset());
  return {block.left() + x - piece.x, block.center().y()};
}

namespace {

// The event, at another place.
QMouseEvent Moved(const QMouseEvent& event, const QPointF& place) {
  return {event.type(),   place,           event.scenePosition(), event.globalPosition(),
          event.button(), event.buttons(), event.modifiers(),     event.pointingDevice()};
}

void TakeAnswer(QDropEvent& event, const QDropEvent& moved) {
  event.setDropAction(moved.dropAction());
  event.setAccepted(moved.isAccepted());
}

}  // namespace

void RowEdit::mousePressEvent(QMouseEvent* event) {
  QMouseEvent moved = Moved(*event, InDocument(event->position()));
  PartEdit::mousePressEvent(&moved);
}

void RowEdit::mouseMoveEvent(QMouseEvent* event) {
  QMouseEvent moved = Moved(*event, InDocument(event->position()));
  PartEdit::mouseMoveEvent(&moved);
}

void RowEdit::mouseReleaseEvent(QMouseEvent* event) {
  QMouseEvent moved = Moved(*event, InDocument(event->position()));
  PartEdit::mouseReleaseEvent(&moved);
}

void RowEdit::mouseDoubleClickEvent(QMouseEvent* event) {
  QMouseEvent moved = Moved(*event, InDocument(event->position()));
  PartEdit::mouseDoubleClickEvent(&moved);
}

void RowEdit::dragMoveEvent(QDragMoveEvent* event) {
  QDragMoveEvent moved(InDocument(event->position()).toPoint(), event->possibleActions(),
                       event->mimeData(), event->buttons(), event->modifiers());
  moved.setDropAction(event->dropAction());
  PartEdit::dragMoveEvent(&moved);
  TakeAnswer(*event, moved);
}

void RowEdit::dropEvent(QDropEvent* event) {
  QDropEvent moved(InDocument(event->position()), event->possibleActions(), event->mimeData(),
                   event->buttons(), event->modifiers());
  moved.setDropAction(event->dropAction());
  PartEdit::dropEvent(&moved);
  TakeAnswer(*event, moved);
}

}  // namespace orreryui
