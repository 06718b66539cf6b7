#include "platform/system/clock.h"

namespace orreryui {
namespace {

class SystemClock final : public Clock {
 public:
  std::time_t Now() override { return std::time(nullptr); }

  std::tm LocalTime(std::time_t moment) override {
    std::tm local{};
    if (::localtime_r(&moment, &local) == nullptr) {
      local = {};
      local.tm_year = 70;
      local.tm_mday = 1;
    }
    return local;
  }
};

Clock*& Current() {
  static SystemClock system;
  static Clock* current = &system;
  return current;
}

}  // namespace

Clock& CurrentClock() { return *Current(); }

ScopedClock::ScopedClock(Clock& clock) : previous_(Current()) { Current() = &clock; }

ScopedClock::~ScopedClock() { Current() = previous_; }

}  // namespace orreryui
