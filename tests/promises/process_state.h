// What a host owns of its process and must find after a call as it was before.
#ifndef ORRERYUI_TESTS_PROMISES_PROCESS_STATE_H_
#define ORRERYUI_TESTS_PROMISES_PROCESS_STATE_H_

#include <string>
#include <vector>

namespace orreryui {

// The locale, the folder, the file mask, the signals and the environment: sorted, a text for each.
using ProcessState = std::vector<std::string>;

ProcessState CurrentState();

// A failure of the running test that names what differs.
void ExpectSame(const ProcessState& before, const ProcessState& after);

// What a process holds that must not grow with the number of calls.
struct Holdings {
  int open_files = 0;
  long resident_kilobytes = 0;
};

Holdings CurrentHoldings();

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_PROMISES_PROCESS_STATE_H_
