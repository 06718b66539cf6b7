#include "front_ends/qt/process_state.h"

#include <langinfo.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <cstring>

namespace orreryui {
namespace {

constexpr char kLocale[] = "LC_ALL";
constexpr char kGlyphLanguage[] = "FC_LANG";

// The last two are those that Qt may take out of the environment when it starts.
constexpr const char* kVariables[] = {kLocale, kGlyphLanguage, "DESKTOP_STARTUP_ID",
                                      "XDG_ACTIVATION_TOKEN"};

// This file is where the process's state is changed for a moment; the public header warns hosts.
// NOLINTBEGIN(concurrency-mt-unsafe)

std::optional<std::string> Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

void Restore(const char* name, const std::optional<std::string>& value) {
  if (Variable(name) == value) return;
  if (value) {
    setenv(name, value->c_str(), 1);
  } else {
    unsetenv(name);
  }
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

ProcessState::ProcessState() : locale_(std::setlocale(LC_ALL, nullptr)), handlers_(NSIG) {
  for (int number = 1; number < NSIG; ++number) {
    sigaction(number, nullptr, &handlers_[std::size_t(number)]);
  }
  for (const char* name : kVariables) variables_[name] = Variable(name);
  std::setlocale(LC_ALL, "");
  if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) setenv(kLocale, "C.UTF-8", 1);
  // Of glyphs that Chinese and Japanese share, the Japanese ones.
  setenv(kGlyphLanguage, "ja", 1);
}

ProcessState::~ProcessState() {
  for (const auto& [name, value] : variables_) Restore(name, value);
  for (int number = 1; number < NSIG; ++number) {
    Restore(number, handlers_[std::size_t(number)]);
  }
  std::setlocale(LC_ALL, locale_.c_str());
}

// NOLINTEND(concurrency-mt-unsafe)

}  // namespace orreryui
