// The widget for each kind of control.
#ifndef ORRERYUI_FRONT_ENDS_QT_MAKE_BINDER_H_
#define ORRERYUI_FRONT_ENDS_QT_MAKE_BINDER_H_

#include <QButtonGroup>
#include <memory>

#include "front_ends/qt/button_groups.h"
#include "front_ends/qt/control_binder.h"

namespace orreryui {

// The groups that buttons join: the last ones begun in a pane, which they belong to. Null where
// there is none.
struct ButtonGroups {
  QButtonGroup* radio = nullptr;
  ButtonMap* map = nullptr;
};

// The binder of a control that isn't a tab control, and the group that it may begin.
std::unique_ptr<ControlBinder> MakeBinder(const BinderPlace& place, const ControlView& view,
                                          ButtonGroups& groups);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_MAKE_BINDER_H_
