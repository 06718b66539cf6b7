// Item views that say which row the user picked, once the view itself is done with the event.
#ifndef ORRERYUI_FRONT_ENDS_QT_PICKING_VIEW_H_
#define ORRERYUI_FRONT_ENDS_QT_PICKING_VIEW_H_

#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QTreeWidget>
#include <functional>

namespace orreryui {

// Selects a row of the view and scrolls to it, if it isn't the selected one. -1 selects none.
void SelectRow(QAbstractItemView* view, int row);

// A list or tree widget. A pick is reported when the left mouse button, which went down on a row,
// comes up, also on the row that was selected already, and when a key has changed the row. Nothing
// else changes which row is selected.
template <class View>
class PickingView : public View {
 public:
  using View::View;

  std::function<void(int row)> on_pick;
  std::function<void(int row)> on_double_click;

  // Makes the keys that move through a list work in `edit`, which keeps the focus.
  void TakeArrowKeysOf(QWidget* edit) { edit->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return View::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
      case Qt::Key_Up:
      case Qt::Key_Down:
      case Qt::Key_PageUp:
      case Qt::Key_PageDown:
        keyPressEvent(key);
        return true;
      default:
        return false;
    }
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (!IsLeftOnRow(*event)) return;
    pressed_ = true;
    View::mousePressEvent(event);
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    if (pressed_) View::mouseMoveEvent(event);
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (!IsLeftOnRow(*event)) return;
    const QModelIndex index = this->indexAt(event->pos());
    View::mouseDoubleClickEvent(event);
    pressed_ = false;
    on_double_click(index.row());
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    if (!pressed_ || event->button() != Qt::LeftButton) return;
    pressed_ = false;
    View::mouseReleaseEvent(event);
    if (this->currentIndex().isValid()) on_pick(this->currentIndex().row());
  }

  void keyPressEvent(QKeyEvent* event) override {
    const int before = SelectedRow();
    if (before < 0 && IsMove(event->key())) {
      // The view would go on from the row that got its frame with the focus.
      SelectRow(this, event->key() == Qt::Key_End ? this->model()->rowCount() - 1 : 0);
    } else {
      View::keyPressEvent(event);
    }
    const int after = SelectedRow();
    if (after != before && after >= 0) on_pick(after);
  }

 private:
  bool IsLeftOnRow(const QMouseEvent& event) const {
    return event.button() == Qt::LeftButton && this->indexAt(event.pos()).isValid();
  }

  static bool IsMove(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End ||
           key == Qt::Key_PageUp || key == Qt::Key_PageDown;
  }

  // -1 if there is none.
  int SelectedRow() const {
    const QModelIndexList rows = this->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
  }

  bool pressed_ = false;  // the left button went down on a row
};

using PickingList = PickingView<QListWidget>;
using PickingTree = PickingView<QTreeWidget>;

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_PICKING_VIEW_H_
