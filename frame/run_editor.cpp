#include "frame/run_editor.h"

#include <string>

#include "platform/dialogs/inner_windows.h"
#include "platform/system/command_line.h"
#include "platform/system/process.h"

namespace orreryui {
namespace {

constexpr std::size_t kLongestCommandLine = 299;

}  // namespace

bool RunEditor(const char* editor, const char* path) {
  // Without a command the path itself would stand in the program's place.
  if (std::string(editor).find_first_not_of(" \t") == std::string::npos) return false;
  const std::string line = std::string(editor) + " " + path;
  if (line.size() > kLongestCommandLine) return false;
  const auto command = ParseCommandLine(line);
  const auto process = command ? ChildProcess::Start(*command) : nullptr;
  if (!process) return false;
  WaitUntil([&] { return process->Ended(); });
  return true;
}

}  // namespace orreryui
