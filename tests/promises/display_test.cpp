// Hosts without Qt on a display of their own, which the environment of this program names and on
// which somebody else presses the keys.
#include <signal.h>

#include <fstream>
#include <string>
#include <thread>

#include "tests/promises/promise.h"

namespace orreryui {
namespace {

std::string ValueOf(const char* variable) {
  const char* const value = getenv(variable);
  return value ? value : "";
}

// Whether a process has ended and given its connections up.
bool HasGone(int process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/stat");
  std::string text;
  return !std::getline(file, text) || text.find(") Z ") != std::string::npos;
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

TEST_F(Display, WhenItsServerDies) {
  ASSERT_EQ(Confirm(), -1);  // by Esc
  const int server = std::stoi(ValueOf("DISPLAY_SERVER"));
  ASSERT_EQ(kill(server, SIGKILL), 0);
  while (!HasGone(server)) std::this_thread::yield();
  EXPECT_EQ(Confirm(), -1);
}

}  // namespace
}  // namespace orreryui
