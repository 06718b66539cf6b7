// The system's own files, behind a layer that fails on demand.
#ifndef ORRERYUI_TESTS_FILES_FAULTY_FILE_SYSTEM_H_
#define ORRERYUI_TESTS_FILES_FAULTY_FILE_SYSTEM_H_

#include <algorithm>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/file_system.h"

namespace orreryui {

// Counts the calls that can fail and fails the one that `failing_call` names, from 1 on. A failing
// write takes half of its bytes first. `longest_read` makes reads come in pieces.
class FaultyFileSystem final : public FileSystem {
 public:
  explicit FaultyFileSystem(int failing_call = 0) : failing_call_(failing_call) {}

  int calls() const { return calls_; }
  // Whether all that was written has been brought to the disk.
  bool all_on_disk() const { return all_on_disk_; }
  std::size_t longest_read = std::numeric_limits<std::size_t>::max();

  std::unique_ptr<File> Open(const std::string& path, OpenMode mode) override {
    if (Fails()) return nullptr;
    auto file = files_.Open(path, mode);
    return file ? std::make_unique<FaultyFile>(*this, std::move(file)) : nullptr;
  }
  bool Remove(const std::string& path) override { return !Fails() && files_.Remove(path); }
  bool Rename(const std::string& from, const std::string& to) override {
    return !Fails() && files_.Rename(from, to);
  }
  std::optional<FileInfo> Stat(const std::string& path) override { return files_.Stat(path); }
  bool IsMissing(const std::string& path) override { return !Fails() && files_.IsMissing(path); }
  std::optional<std::vector<std::string>> List(const std::string& folder) override {
    if (Fails()) return std::nullopt;
    return files_.List(folder);
  }
  bool SyncFolderOf(const std::string& path) override {
    return !Fails() && files_.SyncFolderOf(path);
  }

 private:
  class FaultyFile final : public File {
   public:
    FaultyFile(FaultyFileSystem& owner, std::unique_ptr<File> file)
        : owner_(owner), file_(std::move(file)) {}
    std::ptrdiff_t Read(char* buffer, std::size_t size) override {
      return owner_.Fails() ? -1 : file_->Read(buffer, std::min(size, owner_.longest_read));
    }
    bool Write(std::string_view bytes) override {
      owner_.all_on_disk_ = false;
      if (!owner_.Fails()) return file_->Write(bytes);
      file_->Write(bytes.substr(0, bytes.size() / 2));
      return false;
    }
    bool Seek(std::uint64_t position) override { return !owner_.Fails() && file_->Seek(position); }
    std::optional<std::uint64_t> Size() override {
      return owner_.Fails() ? std::nullopt : file_->Size();
    }
    bool Truncate(std::uint64_t size) override { return !owner_.Fails() && file_->Truncate(size); }
    bool Sync() override {
      if (owner_.Fails() || !file_->Sync()) return false;
      return owner_.all_on_disk_ = true;
    }

   private:
    FaultyFileSystem& owner_;
    std::unique_ptr<File> file_;
  };

  bool Fails() { return ++calls_ == failing_call_; }

  FileSystem& files_ = CurrentFileSystem();
  const int failing_call_;
  int calls_ = 0;
  bool all_on_disk_ = true;
};

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_FILES_FAULTY_FILE_SYSTEM_H_
