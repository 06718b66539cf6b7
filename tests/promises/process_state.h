// What a host owns of its process and must find after a call as it was before.
#ifndef ORRERYUI_TESTS_PROMISES_PROCESS_STATE_H_
#define ORRERYUI_TESTS_PROMISES_PROCESS_STATE_H_

#include <sys/types.h>

#include <map>
#include <string>
#include <vector>

namespace orreryui {

struct ProcessState {
  std::string locale;
  std::string folder;
  mode_t file_mask = 0;
  std::vector<std::string> environment;       // sorted
  std::map<int, std::string> signal_actions;  // what each signal does
  std::string blocked_signals;
};

ProcessState CurrentState();

// A failure of the running test for each part that differs.
void ExpectSame(const ProcessState& before, const ProcessState& after);

// What a process holds that must not grow with the number of calls.
struct Holdings {
  int open_files = 0;
  long resident_kilobytes = 0;
};

Holdings CurrentHoldings();

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_PROMISES_PROCESS_STATE_H_
