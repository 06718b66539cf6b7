#include "front_ends/qt/combo_binders.h"

#include <QVBoxLayout>

#include "front_ends/qt/list_rows.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {
DropDownBinder::DropDownBinder(const BinderPlace& place)
    : ControlBinder(place),
      combo_(new DropDown(place.parent)),
      line_(combo_->lineEdit(), place.id) {
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
