// Programs that the library starts and whose end it watches.
#ifndef ORRERYUI_PLATFORM_SYSTEM_PROCESS_H_
#define ORRERYUI_PLATFORM_SYSTEM_PROCESS_H_

#include <sys/types.h>

#include <memory>

#include "platform/system/command_line.h"

namespace orreryui {

// A started program. It goes on running when the object goes.
class ChildProcess {
 public:
  // Starts the program without a shell, in the process's current directory and environment. It
  // gets standard input, output and error and no other open file, and signals are to it as they
  // are to a program that a user starts. Null if it can't be started.
  static std::unique_ptr<ChildProcess> Start(const Command& command);

  // Whether the program has ended. Never waits. It makes no difference whether the process ignores
  // the ends of its children or collects them elsewhere.
  bool Ended();

 private:
  explicit ChildProcess(pid_t process) : process_(process) {}

  const pid_t process_;
  bool ended_ = false;
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_SYSTEM_PROCESS_H_
