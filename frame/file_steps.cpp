#include "frame/file_steps.h"

#include <algorithm>
#include <optional>

#include "frame/replace_file.h"

namespace orreryui {
namespace {

constexpr char kCreate[] = "create";
constexpr char kRename[] = "rename";
constexpr char kRemove[] = "remove";

bool IsName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos;
}

// Takes the text up to `end` off its front; nothing if it has no `end`.
std::optional<std::string> Take(std::string_view& text, char end) {
  const auto position = text.find(end);
  if (position == std::string_view::npos) return std::nullopt;
  std::string front(text.substr(0, position));
  text.remove_prefix(position + 1);
  return front;
}

std::string LineOf(const FileStep& step) {
  switch (step.kind) {
    case FileStep::Kind::kCreate:
      return std::string(kCreate) + '/' + NameOf(step.to);
    case FileStep::Kind::kRename:
      return std::string(kRename) + '/' + NameOf(step.from) + '/' + NameOf(step.to);
    case FileStep::Kind::kRemove:
      return std::string(kRemove) + '/' + NameOf(step.from);
  }
  return {};
}

std::optional<FileStep> StepOf(std::string_view line, const std::string& folder) {
  const auto kind = Take(line, '/');
  if (kind == kRename) {
    const auto from = Take(line, '/');
    if (!from || !IsName(*from) || !IsName(line)) return std::nullopt;
    return RenameStep(folder + *from, folder + std::string(line));
  }
  if (!IsName(line)) return std::nullopt;
  if (kind == kCreate) return CreateStep(folder + std::string(line));
  if (kind == kRemove) return RemoveStep(folder + std::string(line));
  return std::nullopt;
}

}  // namespace

FileStep CreateStep(const std::string& path) {
  return {FileStep::Kind::kCreate, NameBeside(path, "added"), path};
}

FileStep RenameStep(const std::string& from, const std::string& to) {
  return {FileStep::Kind::kRename, from, to};
}

FileStep RemoveStep(const std::string& path) {
  return {FileStep::Kind::kRemove, path, NameBeside(path, "removed")};
}

std::string TextOf(const FileSteps& steps) {
  std::string text;
  for (const FileStep& step : steps) text += LineOf(step) + '\n';
  return text;
}

FileJournal JournalOf(std::string_view text, const std::string& folder) {
  FileJournal journal;
  while (text != kReady) {
    const auto line = Take(text, '\n');
    const auto step = line ? StepOf(*line, folder) : std::nullopt;
    if (!step) return journal;
    journal.steps.push_back(*step);
  }
  journal.ready = true;
  return journal;
}

bool IsMoved(const std::string& path, const FileSteps& steps) {
  return std::any_of(steps.begin(), steps.end(),
                     [&](const FileStep& step) { return step.from == path || step.to == path; });
}

bool WillExist(const std::string& path, const FileSteps& steps) {
  bool exists = !CurrentFileSystem().IsMissing(path);
  for (const FileStep& step : steps) {
    if (step.from == path) exists = false;
    if (step.to == path) exists = true;
  }
  return exists;
}

std::size_t CountDone(const FileSteps& steps) {
  FileSystem& files = CurrentFileSystem();
  std::size_t done = steps.size();
  while (done > 0 && !(files.IsMissing(steps[done - 1].from) && files.Stat(steps[done - 1].to))) {
    --done;
  }
  return done;
}

bool TakeBack(const FileSteps& steps, std::size_t done) {
  if (done == 0) return true;
  for (; done > 0; --done) {
    if (!CurrentFileSystem().Rename(steps[done - 1].to, steps[done - 1].from)) return false;
  }
  CurrentFileSystem().SyncFolderOf(steps.front().from);
  return true;
}

bool Drop(const std::string& path) {
  return CurrentFileSystem().Remove(path) || CurrentFileSystem().IsMissing(path);
}

bool DropAdded(const FileSteps& steps) {
  return std::all_of(steps.begin(), steps.end(), [](const FileStep& step) {
    return step.kind != FileStep::Kind::kCreate || Drop(step.from);
  });
}

bool DropRemoved(const FileSteps& steps) {
  return std::all_of(steps.begin(), steps.end(), [](const FileStep& step) {
    return step.kind != FileStep::Kind::kRemove || Drop(step.to);
  });
}

}  // namespace orreryui
