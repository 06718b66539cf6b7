// A file system that holds one file, in memory and for reading only.
#ifndef ORRERYUI_FUZZ_ONE_FILE_H_
#define ORRERYUI_FUZZ_ONE_FILE_H_

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system/file_system.h"

namespace orreryui {

// Whatever name is opened leads to `content`, which must live longer.
class OneFile final : public FileSystem {
 public:
  explicit OneFile(std::string_view content) : content_(content) {}

  std::unique_ptr<File> Open(const std::string&, OpenMode mode) override {
    return mode == OpenMode::kRead ? std::make_unique<Reader>(content_) : nullptr;
  }
  bool Remove(const std::string&) override { return false; }
  bool Rename(const std::string&, const std::string&) override { return false; }
  std::optional<std::string> Target(const std::string& path) override { return path; }
  std::optional<FileInfo> Stat(const std::string&) override {
    return FileInfo{.kind = FileInfo::Kind::kFile, .size = content_.size()};
  }
  bool IsProgram(const std::string&) override { return false; }
  bool IsMissing(const std::string&) override { return false; }
  std::optional<std::vector<std::string>> List(const std::string&) override { return std::nullopt; }
  bool SyncFolderOf(const std::string&) override { return false; }

 private:
  class Reader final : public File {
   public:
    explicit Reader(std::string_view content) : content_(content) {}
    std::ptrdiff_t Read(char* buffer, std::size_t size) override {
      const std::size_t count = content_.copy(buffer, size, position_);
      position_ += count;
      return static_cast<std::ptrdiff_t>(count);
    }
    bool Write(std::string_view) override { return false; }
    bool Seek(std::uint64_t position) override {
      position_ = std::min<std::size_t>(position, content_.size());
      return true;
    }
    std::optional<std::uint64_t> Size() override { return content_.size(); }
    std::optional<std::time_t> Modified() override { return 0; }
    bool Truncate(std::uint64_t) override { return false; }
    bool Sync() override { return false; }
    bool Lock(std::chrono::milliseconds) override { return true; }
    bool HasName(const std::string&) override { return true; }
    std::uint64_t CountNames() override { return 1; }
    std::optional<FileAttributes> Attributes() override { return std::nullopt; }
    bool SetAttributes(const FileAttributes&) override { return false; }

   private:
    std::string_view content_;
    std::size_t position_ = 0;
  };

  std::string_view content_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FUZZ_ONE_FILE_H_
