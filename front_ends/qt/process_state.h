// What belongs to the host and is put back after Qt has started.
#ifndef ORRERYUI_FRONT_ENDS_QT_PROCESS_STATE_H_
#define ORRERYUI_FRONT_ENDS_QT_PROCESS_STATE_H_

#include <csignal>
#include <map>
#include <string>
#include <vector>

namespace orreryui {

// Remembers locale, signal handlers and environment, and restores them when it is destroyed. In
// between the environment names a UTF-8 locale, without which Qt would complain.
class ProcessState {
 public:
  ProcessState();
  ~ProcessState();
  ProcessState(const ProcessState&) = delete;
  ProcessState& operator=(const ProcessState&) = delete;

 private:
  std::string locale_;
  std::vector<struct sigaction> handlers_;  // by signal number
  std::map<std::string, std::string> environment_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_PROCESS_STATE_H_
