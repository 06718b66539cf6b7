#include "front_ends/qt/drop_down.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QCompleter>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "front_ends/qt/edit_binders.h"
#include "front_ends/qt/list_rows.h"
#include "front_ends/qt/screen_room.h"

namespace orreryui {
namespace {

// What a screen reader sees of the box. That which Qt has for combo boxes gives the value as the
// name.
class DropDownAccess : public QAccessibleWidget {
 public:
  explicit DropDownAccess(DropDown& box)
      : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box) {}

  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Value ? box_.currentText() : QAccessibleWidget::text(which);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = box_.view()->isVisible();
    state.editable = true;
    return state;
  }

  int childCount() const override { return 2; }
  QAccessibleInterface* child(int index) const override {
    QWidget* const children[] = {box_.view(), box_.lineEdit()};
    return index == 0 || index == 1 ? QAccessible::queryAccessibleInterface(children[index])
                                    : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child->object() == box_.view() ? 0 : child->object() == box_.lineEdit() ? 1 : -1;
  }

  QStringList actionNames() const override {
    return QAccessibleWidget::actionNames() << showMenuAction();
  }
  void doAction(const QString& name) override {
    if (name != showMenuAction()) return QAccessibleWidget::doAction(name);
    if (box_.view()->isVisible()) {
      box_.hidePopup();
    } else {
      box_.showPopup();
    }
  }

 private:
  DropDown& box_;
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  auto* const box = dynamic_cast<DropDown*>(object);
  return box != nullptr ? new DropDownAccess(*box) : nullptr;
}

}  // namespace

DropDown::DropDown(QWidget* parent) : QComboBox(parent) {
  QAccessible::installFactory(MakeAccess);
  // A combo box gives its field a completer, at some cost, unless the field has one already.
  static auto* const no_completer = new QCompleter;
  auto* const line = new LineField(this);
  line->setCompleter(no_completer);
  setLineEdit(line);
  setCompleter(nullptr);
  setInsertPolicy(QComboBox::NoInsert);
  // The template says how wide a box is: its items needn't be measured.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setFocusPolicy(Qt::StrongFocus);
  // Leaving the box with the text of an item in it isn't a choice of that item.
  QObject::disconnect(line, SIGNAL(editingFinished()), this, nullptr);
}

void DropDown::SetCaption(const QString& caption) {
  setAccessibleName(caption);
  lineEdit()->setAccessibleName(caption);
}

void DropDown::showPopup() {
  if (!std::exchange(has_even_rows_, true)) KeepRowsEven(view());
  view()->setAccessibleName(accessibleName());
  WidenList();
  QComboBox::showPopup();
}

void DropDown::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) return QComboBox::wheelEvent(event);
  event->ignore();
}

// The list is as wide as its rows, as far as the screen is. A row that is wider loses its middle.
void DropDown::WidenList() {
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

}  // namespace orreryui
