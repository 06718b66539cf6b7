#include "platform/system/clock.h"

#include <gtest/gtest.h>

#include "tests/support/stopped_clock.h"

namespace orreryui {
namespace {

TEST(ClockTest, TellsTheTimeOfTheSystemOrOfATest) {
  const std::time_t before = std::time(nullptr);
  const std::time_t now = CurrentClock().Now();
  EXPECT_GE(now, before);
  EXPECT_LE(now, std::time(nullptr));
  std::tm local = CurrentClock().LocalTime(now);
  EXPECT_EQ(std::mktime(&local), now);
  {
    StoppedClock stopped;
    const ScopedClock scope(stopped);
    const std::tm then = CurrentClock().LocalTime(CurrentClock().Now());
    EXPECT_EQ(then.tm_year, 104);
    EXPECT_EQ(then.tm_hour, 13);
    EXPECT_EQ(then.tm_min, 5);
  }
  EXPECT_GE(CurrentClock().Now(), now);
}

}  // namespace
}  // namespace orreryui
