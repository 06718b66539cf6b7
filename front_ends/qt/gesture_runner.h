// What a control's widget reports to: the road from an input event to a gesture of the session.
#ifndef ORRERYUI_FRONT_ENDS_QT_GESTURE_RUNNER_H_
#define ORRERYUI_FRONT_ENDS_QT_GESTURE_RUNNER_H_

#include <functional>

#include "platform/front_end.h"

namespace orreryui {

class GestureRunner {
 public:
  using Gesture = std::function<void(ControlSession&)>;

  virtual ~GestureRunner() = default;

  // Runs the gesture, then shows the control at `index` as the model has it. Does nothing while the
  // widgets are being brought in line with the model, so that a change that the program made never
  // counts as one of the user's.
  virtual void Run(int index, const Gesture& gesture) = 0;

  virtual void PressEnter() = 0;
  virtual void PressEscape() = 0;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_GESTURE_RUNNER_H_
