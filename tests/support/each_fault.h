// Plays a change to files with a fault at each call of the file system in turn.
#ifndef ORRERYUI_TESTS_SUPPORT_EACH_FAULT_H_
#define ORRERYUI_TESTS_SUPPORT_EACH_FAULT_H_

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <optional>

#include "tests/support/faulty_file_system.h"
#include "tests/support/test_folder.h"

namespace orreryui {

// Calls `play` with a file system in which the n-th call fails, for each n until none is left to
// fail: first with that call alone, then with all calls from it on. `play` puts the file system in
// its place when the change begins, and checks what came of it.
inline void ForEachFault(const std::function<void(FaultyFileSystem&)>& play) {
  for (const Fault fault : {Fault::kOnce, Fault::kLasting}) {
    int call = 0;
    for (bool failed = true; failed;) {
      FaultyFileSystem files(++call, fault);
      const testing::ScopedTrace trace(
          __FILE__, __LINE__,
          (fault == Fault::kOnce ? "call " : "from call ") + std::to_string(call));
      play(files);
      failed = files.Failed();
    }
    EXPECT_GT(call, 3) << "no call was failed";
  }
}

// A process of its own that does something and ends with what that returns.
class Child {
 public:
  explicit Child(const std::function<int()>& body) : process_(fork()) {
    if (process_ == 0) _exit(body());
  }
  // Waits for the end. 0 is the status of a body that returned 0.
  int Status() const {
    int status = -1;
    EXPECT_EQ(waitpid(process_, &status, 0), process_);
    return status;
  }

 private:
  const pid_t process_;
};

// Whether a process of its own ends by SIGKILL instead of the n-th call that `change` changes files
// by.
inline bool EndsAtCall(int call, const std::function<void()>& change) {
  const Child child([&] {
    FaultyFileSystem files(call, Fault::kKill);
    const ScopedFileSystem scope(files);
    change();
    return 0;
  });
  const int status = child.Status();
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

// Kills a process that makes the change at each of these calls in turn, and once not at all. `lay`
// lays out the files before, `check` looks at them afterwards.
inline void ForEachKill(const std::function<void()>& lay, const std::function<void()>& change,
                        const std::function<void()>& check) {
  int call = 0;
  for (bool killed = true; killed;) {
    const testing::ScopedTrace trace(__FILE__, __LINE__,
                                     "killed at call " + std::to_string(++call));
    lay();
    killed = EndsAtCall(call, change);
    check();
  }
  EXPECT_GT(call, 1) << "no call ended the process";
}

// Plays `change` with a fault at each of its calls, and kills a process that makes it at each. The
// folder must hold `before` or `after`, and what a change says that it did. Tried again, it
// succeeds and leaves nothing beside.
inline void ExpectAllOrNothing(const TestFolder& folder, const Files& before, const Files& after,
                               const std::function<bool()>& change) {
  const auto expect = [&](bool changed) {
    Files found = folder.Content();
    // What is left of a second file stays for the next writer.
    std::erase_if(found, [&](const auto& file) {
      return !before.contains(file.first) && !after.contains(file.first);
    });
    ASSERT_EQ(found, changed ? after : before);
    EXPECT_TRUE(changed || change());
    EXPECT_EQ(folder.Content(), after);
  };
  ForEachFault([&](FaultyFileSystem& files) {
    folder.Lay(before);
    std::optional<ScopedFileSystem> scope(files);
    const bool changed = change();
    scope.reset();
    EXPECT_TRUE(changed || files.Failed());
    if (files.fault() == Fault::kOnce) {
      EXPECT_EQ(folder.Content(), changed ? after : before);
      EXPECT_TRUE(!changed || files.all_on_disk());
    }
    expect(changed);
  });
  ForEachKill([&] { folder.Lay(before); }, change, [&] { expect(folder.Content() == after); });
}

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_SUPPORT_EACH_FAULT_H_
