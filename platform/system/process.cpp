#include "platform/system/process.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace orreryui {
namespace {

// The settings of posix_spawn, given back when they go.
struct SpawnSettings {
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_t actions;

  SpawnSettings() {
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_init(&actions);
  }
  ~SpawnSettings() {
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;
};

void UseDefaultSignals(posix_spawnattr_t& attributes) {
  sigset_t signals;
  sigemptyset(&signals);
  posix_spawnattr_setsigmask(&attributes, &signals);
  sigfillset(&signals);
  posix_spawnattr_setsigdefault(&attributes, &signals);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
}

// The program's name and arguments, as a list of pointers into `command` that a null ends.
std::vector<char*> ArgumentList(const Command& command) {
  std::vector<char*> list{const_cast<char*>(command.program.c_str())};
  for (const std::string& argument : command.arguments) {
    list.push_back(const_cast<char*>(argument.c_str()));
  }
  list.push_back(nullptr);
  return list;
}

}  // namespace

std::unique_ptr<ChildProcess> ChildProcess::Start(const Command& command) {
  SpawnSettings settings;
  UseDefaultSignals(settings.attributes);
  // The host's own files may be open without close-on-exec.
  if (posix_spawn_file_actions_addclosefrom_np(&settings.actions, STDERR_FILENO + 1) != 0) {
    return nullptr;
  }
  pid_t process = 0;
  const std::vector<char*> arguments = ArgumentList(command);
  const int failure = posix_spawn(&process, command.program.c_str(), &settings.actions,
                                  &settings.attributes, arguments.data(), environ);
  if (failure != 0) return nullptr;
  return std::unique_ptr<ChildProcess>(new ChildProcess(process));
}

bool ChildProcess::Ended() {
  // Anything but 0 means that there is no such child any more: it was collected now, or by others.
  if (!ended_) ended_ = waitpid(process_, nullptr, WNOHANG) != 0;
  return ended_;
}

}  // namespace orreryui
