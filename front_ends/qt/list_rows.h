// The rows of list boxes, and of the lists in combo boxes.
#ifndef ORRERYUI_FRONT_ENDS_QT_LIST_ROWS_H_
#define ORRERYUI_FRONT_ENDS_QT_LIST_ROWS_H_

#include <QListWidget>
#include <QStringList>
#include <functional>
#include <string>
#include <vector>

#include "front_ends/qt/gesture_runner.h"
#include "front_ends/qt/picking_view.h"
#include "platform/front_end.h"

namespace orreryui {

// The texts of a row's first column; a row without columns counts as empty.
QStringList FirstColumn(const std::vector<std::vector<std::string>>& rows);

// Gives the rows of the view one height, whatever letters they hold.
void KeepRowsEven(QAbstractItemView* view);

// Shows rows and selection of the control in the list.
void ShowRows(QListWidget* list, const ControlView& view);

// Makes the view that of the control `id`: its rows get one height, and picks and double clicks
// become gestures.
template <class View>
void BindRows(PickingView<View>* view,
              const std::function<void(const GestureRunner::Gesture&)>& run, int id) {
  KeepRowsEven(view);
  view->on_pick = [run, id](int row) {
    run([=](ControlSession& session) { session.Pick(id, row); });
  };
  view->on_double_click = [run, id](int row) {
    run([=](ControlSession& session) { session.DoubleClick(id, row); });
  };
}

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_LIST_ROWS_H_
