#include "platform/system/clock.h"

#include <gtest/gtest.h>

namespace orreryui {
namespace {

TEST(ClockTest, TellsTheTimeOfTheSystem) {
  const std::time_t before = std::time(nullptr);
  const std::time_t now = CurrentClock().Now();
  EXPECT_GE(now, before);
  EXPECT_LE(now, std::time(nullptr));
  std::tm local = CurrentClock().LocalTime(now);
  EXPECT_EQ(std::mktime(&local), now);
}

}  // namespace
}  // namespace orreryui
