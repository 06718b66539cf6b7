#include "front_ends/qt/combo_binders.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "front_ends/qt/list_rows.h"
#include "front_ends/qt/screen_room.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

// A combo box that takes the mouse wheel only while it has the focus, so that a list that the user
// scrolls past it changes nothing in it.
class DropDown : public QComboBox {
 public:
  using QComboBox::QComboBox;

  void showPopup() override {
    if (!std::exchange(has_even_rows_, true)) KeepRowsEven(view());
    WidenList();
    QComboBox::showPopup();
  }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) return QComboBox::wheelEvent(event);
    event->ignore();
  }

 private:
  // The list is as wide as its rows, as far as the screen is. A row that is wider loses its middle.
  void WidenList() {
    const int frame = view()->verticalScrollBar()->sizeHint().width();
    const int room = RoomFor(*window()).width();
    view()->setMinimumWidth(std::min(view()->sizeHintForColumn(0) + frame, room));
    view()->setTextElideMode(Qt::ElideMiddle);
    for (int row = 0; row < count(); ++row) {
      const int needed = view()->sizeHintForIndex(model()->index(row, 0)).width() + frame;
      if (needed <= room) continue;
      setItemData(row, itemText(row).toHtmlEscaped(), Qt::ToolTipRole);
    }
  }

  bool has_even_rows_ = false;
};

// A combo box with an edit field, made ready before anything is bound to that field.
QComboBox* MakeCombo(QWidget* parent) {
  // A combo box gives its field a completer, at some cost, unless the field has one already.
  static auto* const no_completer = new QCompleter;
  auto* combo = new DropDown(parent);
  auto* line = new LineField(combo);
  line->setCompleter(no_completer);
  combo->setLineEdit(line);
  combo->setCompleter(nullptr);
  combo->setInsertPolicy(QComboBox::NoInsert);
  // The template says how wide a box is: its items needn't be measured.
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setFocusPolicy(Qt::StrongFocus);
  // Leaving the box with the text of an item in it isn't a choice of that item.
  QObject::disconnect(combo->lineEdit(), SIGNAL(editingFinished()), combo, nullptr);
  return combo;
}

}  // namespace

DropDownBinder::DropDownBinder(const BinderPlace& place)
    : ControlBinder(place), combo_(MakeCombo(place.parent)), line_(combo_->lineEdit(), place.id) {
  QObject::connect(combo_, &QComboBox::activated, combo_, [this](int row) {
    Run([this, row](ControlSession& session) { session.Pick(id(), row); });
    combo_->lineEdit()->setCursorPosition(0);
  });
  QObject::connect(combo_->lineEdit(), &QLineEdit::textEdited, combo_, [this] {
    line_.Report([this](const GestureRunner::Gesture& gesture) { Run(gesture); });
  });
}

void DropDownBinder::ShowState(const ControlView& view) {
  ShowItems(view);
  if (combo_->currentIndex() != view.selection) {
    const QString text = combo_->currentText();
    const int cursor = combo_->lineEdit()->cursorPosition();
    combo_->setCurrentIndex(view.selection);
    combo_->setEditText(text);
    combo_->lineEdit()->setCursorPosition(cursor);
  }
  line_.Show(FromUtf8(view.text));
}

void DropDownBinder::ShowItems(const ControlView& view) {
  const QStringList items = FirstColumn(view.rows);
  bool same = items.size() == combo_->count();
  for (int row = 0; same && row < combo_->count(); ++row)
    same = combo_->itemText(row) == items[row];
  if (same) return;
  combo_->clear();
  combo_->addItems(items);
  combo_->setCurrentIndex(-1);
}

QSize DropDownBinder::Needed(const ControlView&, QSize offered) const {
  return offered.expandedTo({0, combo_->minimumSizeHint().height()});
}

SimpleComboBinder::SimpleComboBinder(const BinderPlace& place)
    : ControlBinder(place),
      frame_(new QWidget(place.parent)),
      edit_(new LineField(frame_)),
      list_(new PickingList(frame_)),
      line_(edit_, place.id) {
  edit_->setObjectName(QStringLiteral("edit"));
  list_->setObjectName(QStringLiteral("list"));
  auto* column = new QVBoxLayout(frame_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(edit_);
  column->addWidget(list_);
  frame_->setFocusProxy(edit_);
  list_->setFocusProxy(edit_);
  list_->TakeArrowKeysOf(edit_);
  BindRows(
      list_, [this](const GestureRunner::Gesture& gesture) { Run(gesture); }, place.id);
  QObject::connect(edit_, &QLineEdit::textEdited, edit_, [this] {
    line_.Report([this](const GestureRunner::Gesture& gesture) { Run(gesture); });
  });
}

void SimpleComboBinder::ShowState(const ControlView& view) {
  ShowRows(list_, view);
  line_.Show(FromUtf8(view.text));
}

QSize SimpleComboBinder::Needed(const ControlView&, QSize offered) const {
  return offered.expandedTo(
      {0, edit_->minimumSizeHint().height() + 2 * list_->fontMetrics().height()});
}

void SimpleComboBinder::SetCaption(const QString& caption) {
  edit_->setAccessibleName(caption);
  list_->setAccessibleName(caption);
}

}  // namespace orreryui
