// What time it is. Whatever asks for it asks CurrentClock(), so that a test can say it.
#ifndef ORRERYUI_PLATFORM_SYSTEM_CLOCK_H_
#define ORRERYUI_PLATFORM_SYSTEM_CLOCK_H_

#include <ctime>

namespace orreryui {

class Clock {
 public:
  virtual ~Clock() = default;

  virtual std::time_t Now() = 0;  // seconds since 1970, UTC

  // The date and time of day at the user's place. A moment that the system can't tell is 1 January
  // 1970.
  virtual std::tm LocalTime(std::time_t moment) = 0;
};

// The system's own clock, unless a ScopedClock has put another in its place.
Clock& CurrentClock();

// Puts a clock in the place of the current one for as long as the object lives. `clock` must live
// longer. Objects nest; the last one counts.
class ScopedClock {
 public:
  explicit ScopedClock(Clock& clock);
  ~ScopedClock();
  ScopedClock(const ScopedClock&) = delete;
  ScopedClock& operator=(const ScopedClock&) = delete;

 private:
  Clock* previous_;
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_SYSTEM_CLOCK_H_
