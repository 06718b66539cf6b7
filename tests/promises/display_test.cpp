// Hosts without Qt on a display of their own, which the environment of this program names and on
// which somebody else presses the keys.
#include "tests/promises/promise.h"

namespace orreryui {
namespace {

std::string ValueOf(const char* variable) {
  const char* const value = getenv(variable);
  return value ? value : "";
}

class Display : public Promise {
 protected:
  void SetUp() override {
    const std::string display = ValueOf("DISPLAY");
    const std::string authority = ValueOf("XAUTHORITY");
    ASSERT_FALSE(display.empty() || authority.empty());
    Promise::SetUp();
    setenv("DISPLAY", display.c_str(), 1);
    setenv("XAUTHORITY", authority.c_str(), 1);
    setenv("DESKTOP_STARTUP_ID", "host", 1);
  }
};

TEST_F(Display, EscapeDropsTheRange) { EXPECT_EQ(Confirm(), -1); }

TEST_F(Display, TheFirstButtonIsPressed) { EXPECT_EQ(Confirm(), 1); }

TEST_F(Display, WithoutTheRightToUseIt) {
  setenv("XAUTHORITY", "/dev/null", 1);
  ExpectNoDialog();
}

}  // namespace
}  // namespace orreryui
