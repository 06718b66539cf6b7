// The widget for each kind of control.
#ifndef ORRERYUI_FRONT_ENDS_QT_MAKE_BINDER_H_
#define ORRERYUI_FRONT_ENDS_QT_MAKE_BINDER_H_

#include <QButtonGroup>
#include <memory>

#include "front_ends/qt/control_binder.h"

namespace orreryui {

// The binder of a control that isn't a tab control. `radio_group` is the group that a radio button
// joins.
std::unique_ptr<ControlBinder> MakeBinder(const BinderPlace& place, ControlKind kind,
                                          QButtonGroup* radio_group);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_MAKE_BINDER_H_
