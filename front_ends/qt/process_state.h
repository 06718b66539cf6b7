// What belongs to the host and is put back after Qt has started.
#ifndef ORRERYUI_FRONT_ENDS_QT_PROCESS_STATE_H_
#define ORRERYUI_FRONT_ENDS_QT_PROCESS_STATE_H_

#include <csignal>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace orreryui {

// Remembers locale, signal handlers and the variables of the environment that change meanwhile, and
// restores them when it is destroyed. In between the environment names a UTF-8 locale, without
// which Qt would complain, and Japanese as the language of the glyphs. What another thread sets in
// other variables stays.
class ProcessState {
 public:
  ProcessState();
  ~ProcessState();
  ProcessState(const ProcessState&) = delete;
  ProcessState& operator=(const ProcessState&) = delete;

 private:
  std::string locale_;
  std::vector<struct sigaction> handlers_;  // by signal number
  std::map<const char*, std::optional<std::string>> variables_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_PROCESS_STATE_H_
