#include "front_ends/qt/part_edit.h"

#include <QFontInfo>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace orreryui {
namespace {

// The part is exchanged when fewer lines than this are left before or behind the first visible one.
constexpr int kLinesToSpare = 256;

}  // namespace

PartEdit::PartEdit(QWidget* parent)
    : QPlainTextEdit(parent), bar_(new QScrollBar(Qt::Vertical, this)) {
  bar_->hide();
  follow_.setSingleShot(true);
  connect(&follow_, &QTimer::timeout, this, [this] { Follow(); });
  connect(this, &QPlainTextEdit::updateRequest, &follow_, [this] {
    if (firstVisibleBlock().blockNumber() != followed_block_) follow_.start(0);
  });
  connect(bar_, &QScrollBar::valueChanged, this, [this](int line) { GoTo(line); });
}

void PartEdit::SetPart(const TextPart& part, Qt::ScrollBarPolicy bar) {
  part_ = part;
  const bool is_part = bar != Qt::ScrollBarAlwaysOff && (LacksBefore() || LacksBehind());
  setVerticalScrollBarPolicy(is_part ? Qt::ScrollBarAlwaysOff : bar);
  bar_->setVisible(is_part);
  LayOut();
}

void PartEdit::LayOut() {
  const bool has_strip = strip_ != nullptr && !strip_->isHidden();
  const int width = bar_->isHidden() ? 0 : bar_->sizeHint().width();
  const int height = has_strip ? strip_->sizeHint().height() : 0;
  setViewportMargins(0, 0, width, height);
  const QRect inside = contentsRect();
  bar_->setGeometry(inside.right() + 1 - width, inside.top(), width, inside.height());
  if (has_strip) {
    strip_->setGeometry(inside.left(), inside.bottom() + 1 - height, viewport()->width(), height);
  }
  ShowBar();
}

void PartEdit::Zoom(int steps) {
  constexpr int kLeast = -5;
  constexpr int kMost = 15;
  zoom_ = steps == 0 ? 0 : std::clamp(zoom_ + steps, kLeast, kMost);
  QFont letters;  // those of the dialog, as far as nothing is set
  const QFontInfo own(parentWidget()->font());
  if (zoom_ != 0) letters.setPointSizeF(own.pointSizeF() * std::pow(1.1, zoom_));
  setFont(letters);
  if (strip_ != nullptr) strip_->setFont(parentWidget()->font());
  LayOut();
}

void PartEdit::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QPlainTextEdit::wheelEvent(event);
  turned_ += event->angleDelta().y();
  const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
  turned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
  if (steps != 0) Zoom(steps);
  event->accept();
}

void PartEdit::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  LayOut();
}

void PartEdit::keyPressEvent(QKeyEvent* event) {
  const bool to_start = event->matches(QKeySequence::MoveToStartOfDocument) && LacksBefore();
  const bool to_end = event->matches(QKeySequence::MoveToEndOfDocument) && LacksBehind();
  if (to_start) Fetch(0);
  if (to_end) Fetch(part_.all - 1);
  const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (is_enter && !isReadOnly()) {
    // Whatever other keys are held: Qt leaves some of these to the window.
    insertPlainText(QStringLiteral("\n"));
    ensureCursorVisible();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

// A part has one block a line, unless it holds a CR alone: that ends a block and no line. The lines
// of such a part are taken to be spread evenly.
int PartEdit::LineOf(const QTextBlock& block) const {
  return part_.first + int(qint64(block.blockNumber()) * part_.count / blockCount());
}

QTextBlock PartEdit::BlockOf(int line) const {
  const qint64 blocks = blockCount();
  const qint64 block = (line - part_.first) * blocks / part_.count;
  return document()->findBlockByNumber(int(std::clamp<qint64>(block, 0, blocks - 1)));
}

PartEdit::Place PartEdit::PlaceOf(int position) const {
  const QTextBlock block = document()->findBlock(position);
  return {LineOf(block), position - block.position()};
}

int PartEdit::PositionOf(Place place) const {
  const QTextBlock block = BlockOf(place.line);
  return block.position() + std::min(place.column, block.length() - 1);
}

// Gets the part around `line`. What is visible stays so where the new part has it, and so do the
// cursor and the selection; else they go to `line`.
void PartEdit::Fetch(int line) {
  const QTextBlock top = firstVisibleBlock();
  const int top_line = LineOf(top);
  const int rows_above = verticalScrollBar()->value() - top.firstLineNumber();
  const Place anchor = PlaceOf(textCursor().anchor());
  const Place position = PlaceOf(textCursor().position());
  on_scroll(line);

  const bool keeps_top = Holds(top_line);
  const Place start{keeps_top ? top_line : line, 0};
  QTextCursor cursor(document());
  cursor.setPosition(PositionOf(Holds(anchor.line) ? anchor : start));
  cursor.setPosition(PositionOf(Holds(position.line) ? position : start), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  verticalScrollBar()->setValue(BlockOf(start.line).firstLineNumber() +
                                (keeps_top ? rows_above : 0));
}

// Shows `line` as the first one, as the user asks by the scroll bar over all lines.
void PartEdit::GoTo(int line) {
  if (!Holds(line)) Fetch(line);
  const bool is_end = line == bar_->maximum() && !LacksBehind();
  verticalScrollBar()->setValue(is_end ? verticalScrollBar()->maximum()
                                       : BlockOf(line).firstLineNumber());
}

void PartEdit::Follow() {
  const QTextBlock top = firstVisibleBlock();
  followed_block_ = top.blockNumber();
  const bool near_start = LacksBefore() && top.blockNumber() < kLinesToSpare;
  const bool near_end = LacksBehind() && blockCount() - top.blockNumber() < kLinesToSpare;
  if (near_start || near_end) Fetch(LineOf(top));
  ShowBar();
}

void PartEdit::ShowBar() {
  if (bar_->isSliderDown()) return;
  const QSignalBlocker blocker(bar_);
  const int visible = std::max(1, viewport()->height() / fontMetrics().lineSpacing());
  bar_->setPageStep(visible);
  bar_->setRange(0, std::max(0, part_.all - visible));
  bar_->setValue(LineOf(firstVisibleBlock()));
}

}  // namespace orreryui
