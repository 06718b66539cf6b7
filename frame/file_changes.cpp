#include "frame/file_changes.h"

#include "frame/replace_file.h"

namespace orreryui {
namespace {

std::string JournalPath(const char* list_path) {
  return NameBeside(NativePath(list_path), "changes");
}

// Whether two names of folders, as FolderOf gives them, mean one folder.
bool IsOneFolder(const std::string& one, const std::string& other) {
  const auto info = [](const std::string& folder) {
    return CurrentFileSystem().Stat(folder.empty() ? "." : folder);
  };
  if (one == other) return true;
  const auto first = info(one), second = info(other);
  return first && second && first->identity == second->identity;
}

bool IsName(const std::string& name) {
  return !name.empty() && name != "." && name != ".." && name.find('\n') == std::string::npos;
}

}  // namespace

FileChanges::FileChanges(const char* list_path)
    : list_path_(CurrentFileSystem().Target(NativePath(list_path)).value_or("")),
      journal_path_(JournalPath(list_path)),
      new_list_path_(NameBeside(list_path_, "list")),
      journal_(list_path_.empty() ? nullptr : OpenLocked(journal_path_, OpenMode::kOpenOrCreate)) {
  const bool takes_none = !journal_ && CurrentFileSystem().IsMissing(journal_path_);
  clean_ = journal_ && Recover();
  if (clean_ || takes_none) list_ = OpenLocked(list_path_, OpenMode::kReadWrite);
  possible_ = list_ || (clean_ && IsMissing(list_path));
}

FileChanges::~FileChanges() {
  if (clean_) CurrentFileSystem().Remove(journal_path_);
}

// With a journal that is ready, the lack of a new list says that the change was done.
bool FileChanges::Recover() {
  const auto text = ReadAll(*journal_);
  if (!text) return false;
  const auto [steps, ready] = JournalOf(*text, FolderOf(journal_path_));
  const bool done = ready && CurrentFileSystem().IsMissing(new_list_path_);
  if (ready && !done && !CurrentFileSystem().Stat(new_list_path_)) return false;
  return Clear(steps, done, ready ? CountDone(steps) : 0) && journal_->Truncate(0);
}

// Brings the change to its end, from whatever step: forward if it is done, else back.
bool FileChanges::Clear(const FileSteps& steps, bool done, std::size_t done_steps) {
  if (done) return DropRemoved(steps);
  // What was to come goes when the journal isn't ready any more: without it no step seems undone.
  return TakeBack(steps, done_steps) && journal_->Truncate(TextOf(steps).size()) &&
         DropAdded(steps) && Drop(new_list_path_);
}

// The path in the spelling of the list's folder, if that is the one that it leads to.
std::string FileChanges::Beside(const std::string& native) const {
  const std::string folder = FolderOf(journal_path_);
  return IsOneFolder(FolderOf(native), folder) ? folder + NameOf(native) : native;
}

void FileChanges::Add(const FileStep& step) {
  for (const std::string& path : {step.from, step.to}) {
    possible_ = possible_ && FolderOf(path) == FolderOf(journal_path_) && IsName(NameOf(path));
  }
  steps_.push_back(step);
}

bool FileChanges::CanMove(const std::string& native) const {
  const auto info = CurrentFileSystem().Stat(native);
  return info && info->kind == FileInfo::Kind::kFile && !IsMoved(native, steps_);
}

// Where a file of that spelling is going to stand.
std::string FileChanges::NewPath(const char* path) const {
  return Beside(FolderOf(NativePath(path)) + NameToCreate(path));
}

// Whether nothing has the name `native`, or that of `path` in another case, after the steps so far.
bool FileChanges::IsFree(const char* path, const std::string& native) const {
  return !WillExist(native, steps_) && !WillExist(Beside(NativePath(path)), steps_);
}

void FileChanges::Create(const char* path, std::string_view content) {
  const std::string native = NewPath(path);
  possible_ = possible_ && IsFree(path, native);
  Add(CreateStep(native));
  contents_.emplace_back(content);
}

void FileChanges::Rename(const char* from, const char* to) {
  const std::string old_path = Beside(NativePath(from));
  const std::string new_path = NewPath(to);
  possible_ = possible_ && CanMove(old_path) && IsFree(to, new_path);
  Add(RenameStep(old_path, new_path));
}

void FileChanges::Remove(const char* path) {
  const std::string native = Beside(NativePath(path));
  possible_ = possible_ && CanMove(native);
  Add(RemoveStep(native));
}

bool FileChanges::Commit(std::string_view list) {
  if (!possible_) return false;
  possible_ = false;
  if (!journal_) return steps_.empty() && OverwriteOrRestore(*list_, list);
  const bool done = Prepare(list) && DoSteps() && ReplaceList(list);
  if (done) CurrentFileSystem().SyncFolderOf(list_path_);
  clean_ = Clear(steps_, done, done_);
  return done;
}

bool FileChanges::Prepare(std::string_view list) {
  return CreateNewList() && new_list_->Write(list) && new_list_->Sync() && journal_->Seek(0) &&
         journal_->Write(TextOf(steps_)) && journal_->Sync() && WriteCreated() &&
         CurrentFileSystem().SyncFolderOf(journal_path_) && journal_->Write(kReady) &&
         journal_->Sync();
}

bool FileChanges::CreateNewList() {
  const auto mode = list_ ? OpenMode::kCreatePrivate : OpenMode::kCreate;
  new_list_ = CurrentFileSystem().Open(new_list_path_, mode);
  if (!new_list_) return false;
  replaces_ = !list_ || MakeLike(*new_list_, *list_);
  return true;
}

bool FileChanges::WriteCreated() {
  auto content = contents_.begin();
  for (const FileStep& step : steps_) {
    if (step.kind != FileStep::Kind::kCreate) continue;
    const auto file = CurrentFileSystem().Open(step.from, OpenMode::kCreate);
    if (!file || !file->Write(*content++) || !file->Sync()) return false;
  }
  return true;
}

bool FileChanges::DoSteps() {
  for (const FileStep& step : steps_) {
    if (!CurrentFileSystem().Rename(step.from, step.to)) return false;
    ++done_;
  }
  return true;
}

bool FileChanges::ReplaceList(std::string_view list) {
  if (!list_ && !CurrentFileSystem().IsMissing(list_path_)) return false;
  if (replaces_ && CurrentFileSystem().Rename(new_list_path_, list_path_)) return true;
  return list_ && OverwriteList(list);
}

bool FileChanges::OverwriteList(std::string_view list) {
  const auto old = ReadAll(*list_);
  if (!old || !OverwriteOrRestore(*list_, list)) return false;
  if (CurrentFileSystem().Remove(new_list_path_)) return true;
  OverwriteOrRestore(*list_, *old);
  return false;
}

bool FinishChanges(const char* list_path) {
  if (CurrentFileSystem().IsMissing(JournalPath(list_path))) return true;
  return FileChanges(list_path).clean_;
}

}  // namespace orreryui
