#include "tests/promises/process_state.h"

#include <gtest/gtest.h>
#include <locale.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace orreryui {
namespace {

// The kernel fills only a part of a sigset_t, so that its bytes can't be compared.
std::string Members(const sigset_t& signals) {
  std::string members;
  for (int number = 1; number <= SIGRTMAX; ++number) {
    if (sigismember(&signals, number) == 1) members += " " + std::to_string(number);
  }
  return members;
}

// Set by the C library on each action that goes through it; it changes nothing.
constexpr int kRestorerFlag = 0x04000000;

std::string ActionOf(int number) {
  struct sigaction action {};
  sigaction(number, nullptr, &action);
  return "signal " + std::to_string(number) + ": handler " +
         std::to_string(reinterpret_cast<std::uintptr_t>(action.sa_handler)) + ", flags " +
         std::to_string(action.sa_flags & ~kRestorerFlag) + ", blocks" + Members(action.sa_mask);
}

}  // namespace

ProcessState CurrentState() {
  const mode_t file_mask = umask(0);
  umask(file_mask);
  sigset_t blocked{};
  sigprocmask(SIG_SETMASK, nullptr, &blocked);
  ProcessState state = {std::string("locale ") + setlocale(LC_ALL, nullptr),
                        "folder " + std::filesystem::current_path().string(),
                        "file mask " + std::to_string(file_mask), "blocked" + Members(blocked)};
  for (int number = 1; number <= SIGRTMAX; ++number) state.push_back(ActionOf(number));
  for (char** entry = environ; entry && *entry; ++entry) state.emplace_back(*entry);
  std::sort(state.begin(), state.end());
  return state;
}

// An environment may hold secrets, so no more of it is printed than what differs.
void ExpectSame(const ProcessState& before, const ProcessState& after) {
  ProcessState differing;
  std::set_symmetric_difference(before.begin(), before.end(), after.begin(), after.end(),
                                std::back_inserter(differing));
  EXPECT_EQ(differing, ProcessState());
}

Holdings CurrentHoldings() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  long size = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> size >> resident;
  return {static_cast<int>(std::distance(begin(files), end(files))),
          resident * (sysconf(_SC_PAGESIZE) / 1024)};
}

}  // namespace orreryui
