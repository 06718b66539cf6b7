// A promise that the library makes to its hosts. Every test case of a promise is a host of its own:
// it changes the environment of its process and leaves the library in it, so ctest starts a process
// for each, and the fixture refuses to run two in one.
#ifndef ORRERYUI_TESTS_PROMISES_PROMISE_H_
#define ORRERYUI_TESTS_PROMISES_PROMISE_H_

#include <gtest/gtest.h>
#include <orreryui/orreryui.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <unistd.h>

#include <functional>
#include <string>

#include "tests/promises/process_state.h"

namespace orreryui {

class Promise : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(testing::UnitTest::GetInstance()->test_to_run_count(), 1)
        << "a promise needs a process of its own: choose one with --gtest_filter";
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "XDG_SESSION_TYPE",
                             "QT_QPA_PLATFORM", "XAUTHORITY"}) {
      unsetenv(name);
    }
  }

  static void UseOffscreen() { setenv("QT_QPA_PLATFORM", "offscreen", 1); }

  // Calls a host's own way to the operations, and checks that it leaves no trace in the process.
  static int Confirm(const std::function<decltype(OnRengeConfirm)>& operation = OnRengeConfirm) {
    const ProcessState before = CurrentState();
    const int answer = operation("139.5000", "35.4000", "139.6000", "35.3000");
    ExpectSame(before, CurrentState());
    return answer;
  }

  static std::string ChooseDataSource(
      const std::function<decltype(OnDataSourceSet)>& operation = OnDataSourceSet) {
    const ProcessState before = CurrentState();
    const CString result = operation(0, "on", (testing::TempDir() + "/").c_str());
    ExpectSame(before, CurrentState());
    return result.operator const char*();
  }

  // Leaves the process `count` file descriptors to open.
  static void LeaveDescriptors(rlim_t count) {
    static const int next = dup(STDIN_FILENO);
    close(next);
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    limit.rlim_cur = rlim_t(next) + count;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
  }

  // Both operations give their results for a run that didn't end in OK.
  static void ExpectNoDialog() {
    EXPECT_EQ(Confirm(), -1);
    EXPECT_EQ(ChooseDataSource(), "");
  }

  // `call`, made a thousand times more after a hundred times, needs no more of the process.
  static void ExpectBounded(const std::function<void()>& call) {
    for (int i = 0; i < 100; ++i) call();
    const Holdings before = CurrentHoldings();
    for (int i = 0; i < 1000; ++i) call();
    const Holdings after = CurrentHoldings();
    EXPECT_EQ(before.open_files, after.open_files);
    EXPECT_LT(after.resident_kilobytes, before.resident_kilobytes + 2048);
  }
};

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_PROMISES_PROMISE_H_
