#include "platform/system/command_line.h"

#include <orreryui/cstring.h>

#include <algorithm>
#include <cstdlib>

#include "platform/strings/code_page_932.h"
#include "platform/system/file_system.h"
#include "platform/system/path.h"

namespace orreryui {
namespace {

constexpr std::string_view kBlanks = " \t";

bool HoldsCharacter(std::string_view text, char character) {
  return CString(text.data(), static_cast<int>(text.size())).Find(character) >= 0;
}

bool IsProgram(const std::string& native) { return CurrentFileSystem().IsProgram(native); }

// The program of this name in the folders of PATH, or the empty string.
std::string FindOnPath(const std::string& name) {
  const char* const path = std::getenv("PATH");
  std::string_view folders = path ? path : "/usr/bin:/bin";
  while (!folders.empty()) {
    const std::string_view folder = folders.substr(0, folders.find(':'));
    folders.remove_prefix(std::min(folders.size(), folder.size() + 1));
    std::string native(folder);
    native.append("/").append(name);
    if (!folder.empty() && IsProgram(native)) return native;
  }
  return {};
}

// The path of the program that `text` names, or the empty string.
std::string FindProgram(std::string_view text) {
  if (text.empty()) return {};
  if (!HoldsCharacter(text, '\\') && !HoldsCharacter(text, '/')) return FindOnPath(ToUtf8(text));
  std::string native = NativePath(text);
  return IsProgram(native) ? native : std::string();
}

// Finds the program in front of `line` and takes it away.
std::string TakeProgram(std::string_view& line) {
  if (!line.empty() && line[0] == '"') {
    const std::string_view text = line.substr(1, line.find('"', 1) - 1);
    line.remove_prefix(std::min(line.size(), text.size() + 2));
    return FindProgram(text);
  }
  for (std::size_t end = 0; end < line.size();) {
    end = std::min(line.find_first_of(kBlanks, end + 1), line.size());
    std::string program = FindProgram(line.substr(0, end));
    if (program.empty()) continue;
    line.remove_prefix(end);
    return program;
  }
  return {};
}

// The path on the disk that `text` stands for, or nothing if it isn't the path of what exists.
std::optional<std::string> ExistingPath(std::string_view text) {
  if (text.empty() || text[0] == '-') return std::nullopt;
  std::string native = NativePath(text);
  if (!CurrentFileSystem().Stat(native)) return std::nullopt;
  return native;
}

// Takes the longest run of words in front of `rest` that is a path of what exists.
std::optional<std::string> TakeExistingPath(std::string_view& rest) {
  std::size_t end = rest.size();
  while (end != std::string_view::npos) {
    const std::size_t last = rest.substr(0, end).find_last_not_of(kBlanks);
    if (last == std::string_view::npos) break;
    if (auto native = ExistingPath(rest.substr(0, last + 1))) {
      rest.remove_prefix(last + 1);
      return native;
    }
    end = rest.find_last_of(kBlanks, last);
  }
  return std::nullopt;
}

// Adds a quote to a word, behind the backslashes that it ends in. True if it is a plain character.
bool AddQuote(std::string& word, std::size_t backslashes) {
  word.resize(word.size() - (backslashes + 1) / 2);
  if (backslashes % 2 == 0) return false;
  word += '"';
  return true;
}

// Takes the word in front of `rest`.
std::string TakeWord(std::string_view& rest) {
  std::string word;
  bool quoted = false;
  std::size_t backslashes = 0;
  std::size_t i = 0;
  while (i < rest.size() && (quoted || kBlanks.find(rest[i]) == std::string_view::npos)) {
    const char next = i + 1 < rest.size() ? rest[i + 1] : '\0';
    const auto length = static_cast<std::size_t>(CharacterLength(rest[i], next));
    if (rest[i] == '"') {
      if (!AddQuote(word, backslashes)) quoted = !quoted;
    } else {
      word += rest.substr(i, length);
    }
    backslashes = rest[i] == '\\' ? backslashes + 1 : 0;
    i += length;
  }
  rest.remove_prefix(i);
  return word;
}

std::string Translate(const std::string& word) {
  if (auto native = ExistingPath(word)) return *native;
  const bool path = HoldsCharacter(word, '\\') && word[0] != '-';
  return path ? NativePath(word) : ToUtf8(word);
}

void SkipBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
}

}  // namespace

std::optional<Command> ParseCommandLine(std::string_view line) {
  Command command;
  SkipBlanks(line);
  command.program = TakeProgram(line);
  if (command.program.empty()) return std::nullopt;
  for (SkipBlanks(line); !line.empty(); SkipBlanks(line)) {
    auto path = TakeExistingPath(line);
    command.arguments.push_back(path ? *path : Translate(TakeWord(line)));
  }
  return command;
}

}  // namespace orreryui
