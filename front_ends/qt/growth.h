// Where controls go in a window that the user makes larger or smaller.
#ifndef ORRERYUI_FRONT_ENDS_QT_GROWTH_H_
#define ORRERYUI_FRONT_ENDS_QT_GROWTH_H_

#include <QPoint>

#include "platform/front_end.h"

namespace orreryui {

// The place of a control when `gain` dialog units have gone to the one at `grower`. A control that
// reaches from its beginning to its end gets them too; one that only ends where it does or behind
// moves along.
DialogRect Grown(const DialogRect& place, const DialogRect& grower, QPoint gain);

// The gain at which the one at `grower` still shows a few lines.
QPoint LeastGain(const DialogRect& grower);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_GROWTH_H_
