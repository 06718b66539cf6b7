// A clock that stands still until a test sets it.
#ifndef ORRERYUI_TESTS_SUPPORT_STOPPED_CLOCK_H_
#define ORRERYUI_TESTS_SUPPORT_STOPPED_CLOCK_H_

#include "platform/system/clock.h"

namespace orreryui {

class StoppedClock : public Clock {
 public:
  std::time_t Now() override { return now; }
  std::tm LocalTime(std::time_t moment) override { return *std::gmtime(&moment); }

  std::time_t now = 1103979900;  // 13:05 UTC on 25 December 2004
};

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_SUPPORT_STOPPED_CLOCK_H_
