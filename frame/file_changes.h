// Several files of one folder that change as one, with the list that names them:
//
//   FileChanges changes(folder + "PLTTFILE.DAT");
//   ... read the list ...
//   changes.Remove(folder + "Orbis1.plt");
//   changes.Rename(folder + "Orbis2.plt", folder + "Orbis1.plt");
//   return changes.Commit(text_of_the_new_list);
//
// A journal beside the list names the steps before the first of them is done. The last, in which
// the new list takes the place of the old one by a rename, is the moment of the change. A change
// that is cut off before it, by a fault or the end of the process, is taken back, and what is left
// of one behind it is cleared up: at once, else at the next opening. Only a list that has several
// names, or whose owner can't be kept, is overwritten where it lies, and the end of the process at
// that moment may tear it. So is a list in a folder that takes no new file, as long as no other
// file is to change with it.
#ifndef ORRERYUI_FRAME_FILE_CHANGES_H_
#define ORRERYUI_FRAME_FILE_CHANGES_H_

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "frame/file_steps.h"
#include "platform/system/file_system.h"
#include "platform/system/path.h"

namespace orreryui {

// While one lives, only through it is the list changed: other processes wait, or refuse, and this
// one mustn't write the list through frame/line_file.h. Folders are listed once (ListedOnce).
class FileChanges {
 public:
  // Brings a change that was cut off to its end first.
  explicit FileChanges(const char* list_path);
  ~FileChanges();
  FileChanges(const FileChanges&) = delete;
  FileChanges& operator=(const FileChanges&) = delete;

  // Steps in the order in which they are to be done. Nothing happens on the disk yet. One that
  // can't be done refuses the whole change: for a file that isn't there, a name that is taken, a
  // path that leads out of the list's folder.
  void Create(const char* path, std::string_view content);
  void Rename(const char* from, const char* to);
  void Remove(const char* path);

  // Does the steps and gives the list its new content; a list that is missing is made. True if that
  // is what the next opening finds, false if that finds what was there before. Once only.
  bool Commit(std::string_view list);

 private:
  friend bool FinishChanges(const char* list_path);

  bool Recover();
  bool Clear(const FileSteps& steps, bool done, std::size_t done_steps);
  std::string Beside(const std::string& native) const;
  std::string NewPath(const char* path) const;
  void Add(const FileStep& step);
  bool CanMove(const std::string& native) const;
  bool IsFree(const char* path, const std::string& native) const;

  bool Prepare(std::string_view list);
  bool CreateNewList();
  bool WriteCreated();
  bool DoSteps();
  bool ReplaceList(std::string_view list);
  bool OverwriteList(std::string_view list);

  const ListedOnce listed_once_;
  const std::string list_path_;
  const std::string journal_path_;
  const std::string new_list_path_;  // there as long as the journal's steps may be taken back
  const std::unique_ptr<File> journal_;
  std::unique_ptr<File> list_;
  std::unique_ptr<File> new_list_;
  FileSteps steps_;
  std::vector<std::string> contents_;  // of the files to be created, in their order
  std::size_t done_ = 0;               // of the steps
  bool clean_ = false;                 // the journal isn't needed any more
  bool possible_ = false;
  bool replaces_ = false;  // the new list can take the place of the old one
};

// Whoever opens the list calls this first. True if no change was cut off, or it has been brought to
// its end now. False if it can't be, or another process is in the middle of one: the list and its
// files may not fit each other.
bool FinishChanges(const char* list_path);

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_FILE_CHANGES_H_
