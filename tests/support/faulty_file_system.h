// The system's own files, behind a layer that fails on demand.
#ifndef ORRERYUI_TESTS_SUPPORT_FAULTY_FILE_SYSTEM_H_
#define ORRERYUI_TESTS_SUPPORT_FAULTY_FILE_SYSTEM_H_

#include <signal.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/system/file_system.h"

namespace orreryui {

enum class Fault {
  kOnce,     // a write takes half of its bytes before it fails
  kLasting,  // all calls from that one on fail
  kKill,     // the process ends instead of the call, which is one that changes something
};

// Counts the calls that can fail and fails the one that `failing_call` names, from 1 on.
// Nothing is really synced, which takes long. `longest_read` makes reads come in pieces.
class FaultyFileSystem final : public FileSystem {
 public:
  explicit FaultyFileSystem(int failing_call = 0, Fault fault = Fault::kOnce)
      : failing_call_(failing_call), fault_(fault) {}

  int calls() const { return calls_; }
  int listings() const { return listings_; }
  Fault fault() const { return fault_; }
  // Whether a call has failed.
  bool Failed() const { return failing_call_ > 0 && calls_ >= failing_call_; }
  // Whether all that was written has been brought to the disk.
  bool all_on_disk() const { return all_on_disk_; }
  std::size_t longest_read = std::numeric_limits<std::size_t>::max();

  std::unique_ptr<File> Open(const std::string& path, OpenMode mode) override {
    const bool creates = mode != OpenMode::kRead && mode != OpenMode::kReadWrite;
    if (creates ? FailsToChange() : Fails()) return nullptr;
    auto file = files_.Open(path, mode);
    return file ? std::make_unique<FaultyFile>(*this, std::move(file)) : nullptr;
  }
  bool Remove(const std::string& path) override { return !FailsToChange() && files_.Remove(path); }
  bool Rename(const std::string& from, const std::string& to) override {
    return !FailsToChange() && files_.Rename(from, to);
  }
  std::optional<std::string> Target(const std::string& path) override {
    return Fails() ? std::nullopt : files_.Target(path);
  }
  std::optional<FileInfo> Stat(const std::string& path) override { return files_.Stat(path); }
  bool IsProgram(const std::string& path) override { return files_.IsProgram(path); }
  bool IsMissing(const std::string& path) override { return !Fails() && files_.IsMissing(path); }
  std::optional<std::vector<std::string>> List(const std::string& folder) override {
    ++listings_;
    if (Fails()) return std::nullopt;
    return files_.List(folder);
  }
  bool SyncFolderOf(const std::string&) override { return !Fails(); }

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
      if (!owner_.FailsToChange()) return file_->Write(bytes);
      if (owner_.fault_ == Fault::kOnce) file_->Write(bytes.substr(0, bytes.size() / 2));
      return false;
    }
    bool Seek(std::uint64_t position) override { return !owner_.Fails() && file_->Seek(position); }
    std::optional<std::uint64_t> Size() override {
      return owner_.Fails() ? std::nullopt : file_->Size();
    }
    std::optional<std::time_t> Modified() override {
      return owner_.Fails() ? std::nullopt : file_->Modified();
    }
    bool Truncate(std::uint64_t size) override {
      return !owner_.FailsToChange() && file_->Truncate(size);
    }
    bool Sync() override {
      if (owner_.Fails()) return false;
      return owner_.all_on_disk_ = true;
    }
    bool Lock(std::chrono::milliseconds patience) override {
      return !owner_.Fails() && file_->Lock(patience);
    }
    bool HasName(const std::string& path) override {
      return !owner_.Fails() && file_->HasName(path);
    }
    std::uint64_t CountNames() override { return owner_.Fails() ? 0 : file_->CountNames(); }
    std::optional<FileAttributes> Attributes() override {
      return owner_.Fails() ? std::nullopt : file_->Attributes();
    }
    bool SetAttributes(const FileAttributes& attributes) override {
      return !owner_.FailsToChange() && file_->SetAttributes(attributes);
    }

   private:
    FaultyFileSystem& owner_;
    std::unique_ptr<File> file_;
  };

  bool Fails() { return fault_ != Fault::kKill && FailsToChange(); }
  bool FailsToChange() {
    ++calls_;
    if (Failed() && fault_ == Fault::kKill) raise(SIGKILL);
    return fault_ == Fault::kLasting ? Failed() : calls_ == failing_call_;
  }

  FileSystem& files_ = CurrentFileSystem();
  const int failing_call_;
  const Fault fault_;
  int calls_ = 0;
  int listings_ = 0;
  bool all_on_disk_ = true;
};

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_SUPPORT_FAULTY_FILE_SYSTEM_H_
