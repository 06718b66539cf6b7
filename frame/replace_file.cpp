#include "frame/replace_file.h"

#include <optional>

namespace orreryui {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 1000ms;
constexpr int kMostAttempts = 10;  // at a file whose name goes to another one again and again

bool Overwrite(File& file, std::string_view content) {
  return file.Seek(0) && file.Write(content) && file.Truncate(content.size()) && file.Sync();
}

// A second file that is gone again, unless it takes the first one's place.
class SecondFile {
 public:
  SecondFile(const std::string& path, OpenMode mode)
      : path_(path), file_(CreateLocked(path, mode)) {}
  ~SecondFile() {
    if (file_) CurrentFileSystem().Remove(path_);
  }
  SecondFile(const SecondFile&) = delete;
  SecondFile& operator=(const SecondFile&) = delete;

  bool IsLike(File& file) { return file_ && MakeLike(*file_, file); }
  bool Write(std::string_view content) { return file_->Write(content) && file_->Sync(); }
  bool TakePlaceOf(const std::string& path) {
    if (!file_ || !CurrentFileSystem().Rename(path_, path)) return false;
    file_.reset();
    CurrentFileSystem().SyncFolderOf(path);
    return true;
  }
  bool IsOpen() const { return file_ != nullptr; }

 private:
  const std::string path_;
  std::unique_ptr<File> file_;
};

// Nothing if the file can't be replaced.
std::optional<bool> ReplaceBy(const std::string& second_path, const std::string& path, File& file,
                              std::string_view content) {
  SecondFile second(second_path, OpenMode::kCreatePrivate);
  if (!second.IsLike(file)) return std::nullopt;
  if (!second.Write(content)) return false;
  if (!second.TakePlaceOf(path)) return std::nullopt;
  return true;
}

}  // namespace

std::string NameBeside(const std::string& path, std::string_view purpose) {
  return (FolderOf(path) + '.' + NameOf(path) + ".orreryui-").append(purpose);
}

bool RemoveLeftBehind(const std::string& path) {
  const auto file = CurrentFileSystem().Open(path, OpenMode::kReadWrite);
  if (!file) return CurrentFileSystem().IsMissing(path);
  if (!file->Lock(kPatience)) return false;
  return !file->HasName(path) || CurrentFileSystem().Remove(path);
}

std::unique_ptr<File> OpenLocked(const std::string& path, OpenMode mode) {
  for (int i = 0; i < kMostAttempts; ++i) {
    auto file = CurrentFileSystem().Open(path, mode);
    if (!file || !file->Lock(kPatience)) return nullptr;
    if (file->HasName(path)) return file;
  }
  return nullptr;
}

std::unique_ptr<File> CreateLocked(const std::string& path, OpenMode mode) {
  for (int i = 0; i < kMostAttempts; ++i) {
    auto file = CurrentFileSystem().Open(path, mode);
    if (file && file->Lock(kPatience) && file->HasName(path)) return file;
    file.reset();
    if (!RemoveLeftBehind(path)) return nullptr;
  }
  return nullptr;
}

bool MakeLike(File& second, File& file) {
  if (file.CountNames() != 1) return false;
  const auto attributes = file.Attributes();
  return attributes && second.SetAttributes(*attributes);
}

bool OverwriteOrRestore(File& file, std::string_view content) {
  const auto old = ReadAll(file);
  if (!old) return false;
  if (Overwrite(file, content)) return true;
  Overwrite(file, *old);
  return false;
}

bool ReplaceFile(const std::string& path, const std::string& second, std::string_view content) {
  const auto file = OpenLocked(path, OpenMode::kReadWrite);
  if (!file) return false;
  const auto replaced = ReplaceBy(second, path, *file, content);
  return replaced ? *replaced : OverwriteOrRestore(*file, content);
}

bool CreateWhole(const std::string& path, std::string_view content) {
  SecondFile second(SecondName(path), OpenMode::kCreate);
  return second.IsOpen() && CurrentFileSystem().IsMissing(path) && second.Write(content) &&
         second.TakePlaceOf(path);
}

}  // namespace orreryui
