#include "front_ends/qt/process_state.h"

#include <langinfo.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <cstring>

namespace orreryui {
namespace {

std::map<std::string, std::string> Environment() {
  std::map<std::string, std::string> variables;
  for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
    char* const equals = std::strchr(*entry, '=');
    if (equals != nullptr) variables.emplace(std::string(*entry, equals), std::string(equals + 1));
  }
  return variables;
}

// Setting an action anew isn't free of traces: the C library marks it as its own. So an action that
// nobody changed is left alone.
void Restore(int number, const struct sigaction& action) {
  struct sigaction now {};
  sigaction(number, nullptr, &now);
  if (now.sa_handler == action.sa_handler && now.sa_flags == action.sa_flags) return;
  sigaction(number, &action, nullptr);
}

}  // namespace

ProcessState::ProcessState()
    : locale_(std::setlocale(LC_ALL, nullptr)), handlers_(NSIG), environment_(Environment()) {
  for (int number = 1; number < NSIG; ++number) {
    sigaction(number, nullptr, &handlers_[std::size_t(number)]);
  }
  std::setlocale(LC_ALL, "");
  if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) setenv("LC_ALL", "C.UTF-8", 1);
}

ProcessState::~ProcessState() {
  for (const auto& [name, value] : Environment()) {
    if (environment_.count(name) == 0) unsetenv(name.c_str());
  }
  for (const auto& [name, value] : environment_) {
    const char* const now = std::getenv(name.c_str());
    if (now == nullptr || now != value) setenv(name.c_str(), value.c_str(), 1);
  }
  for (int number = 1; number < NSIG; ++number) {
    Restore(number, handlers_[std::size_t(number)]);
  }
  std::setlocale(LC_ALL, locale_.c_str());
}

}  // namespace orreryui
