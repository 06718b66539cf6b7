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

std::vector<std::string> Environment() {
  std::vector<std::string> entries;
  for (char** entry = environ; entry && *entry; ++entry) entries.emplace_back(*entry);
  std::sort(entries.begin(), entries.end());
  return entries;
}

// Set by the C library on each action that goes through it; it changes nothing.
constexpr int kRestorerFlag = 0x04000000;

std::map<int, std::string> SignalActions() {
  std::map<int, std::string> actions;
  for (int number = 1; number <= SIGRTMAX; ++number) {
    struct sigaction action {};
    if (sigaction(number, nullptr, &action) != 0) continue;
    actions[number] = "handler " +
                      std::to_string(reinterpret_cast<std::uintptr_t>(action.sa_handler)) +
                      ", flags " + std::to_string(action.sa_flags & ~kRestorerFlag) + ", blocks" +
                      Members(action.sa_mask);
  }
  return actions;
}

// What only one of two sorted lists holds. An environment may hold secrets, so no more of it is
// printed than that.
std::vector<std::string> Differing(const std::vector<std::string>& one,
                                   const std::vector<std::string>& other) {
  std::vector<std::string> differing;
  std::set_symmetric_difference(one.begin(), one.end(), other.begin(), other.end(),
                                std::back_inserter(differing));
  return differing;
}

}  // namespace

ProcessState CurrentState() {
  ProcessState state;
  state.locale = setlocale(LC_ALL, nullptr);
  state.folder = std::filesystem::current_path().string();
  state.file_mask = umask(0);
  umask(state.file_mask);
  state.environment = Environment();
  state.signal_actions = SignalActions();
  sigset_t blocked{};
  sigprocmask(SIG_SETMASK, nullptr, &blocked);
  state.blocked_signals = Members(blocked);
  return state;
}

void ExpectSame(const ProcessState& before, const ProcessState& after) {
  EXPECT_EQ(before.locale, after.locale);
  EXPECT_EQ(before.folder, after.folder);
  EXPECT_EQ(before.file_mask, after.file_mask);
  EXPECT_EQ(Differing(before.environment, after.environment), std::vector<std::string>());
  for (const auto& [number, action] : before.signal_actions) {
    EXPECT_EQ(action, after.signal_actions.at(number)) << "signal " << number;
  }
  EXPECT_EQ(before.blocked_signals, after.blocked_signals);
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
