// The steps of a change to several files of one folder. Each is a rename, so that it is done or
// isn't: a file that goes gets a name aside, one that comes has been written under a second name.
//
// Paths are the file system's own.
#ifndef ORRERYUI_FRAME_FILE_STEPS_H_
#define ORRERYUI_FRAME_FILE_STEPS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orreryui {

struct FileStep {
  enum class Kind { kCreate, kRename, kRemove };
  Kind kind;
  std::string from;
  std::string to;
};

using FileSteps = std::vector<FileStep>;

FileStep CreateStep(const std::string& path);
FileStep RenameStep(const std::string& from, const std::string& to);
FileStep RemoveStep(const std::string& path);

// The steps as text, a line each. Only names are told: whoever wrote the text, the steps stay in
// one folder, and only files under names of this library are dropped.
std::string TextOf(const FileSteps& steps);

// What stands behind the text when all is ready for the first step.
inline constexpr char kReady[] = "ready\n";

struct FileJournal {
  FileSteps steps;  // those that the text has whole lines of
  bool ready = false;
};

// `folder` ends in its separator.
FileJournal JournalOf(std::string_view text, const std::string& folder);

// How many of the steps have been done, by the names that are there. No step may move a file that
// one before it has moved.
std::size_t CountDone(const FileSteps& steps);

// Whether a step moves the file `path`, or gives one that name.
bool IsMoved(const std::string& path, const FileSteps& steps);

// Whether `path` is going to lead to something when the steps are done.
bool WillExist(const std::string& path, const FileSteps& steps);

// Takes the first `done` steps back. False: not all of them.
bool TakeBack(const FileSteps& steps, std::size_t done);

// Removes a file if there is one, the files that were to come but don't, and the files aside. False
// if one is left.
bool Drop(const std::string& path);
bool DropAdded(const FileSteps& steps);
bool DropRemoved(const FileSteps& steps);

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_FILE_STEPS_H_
