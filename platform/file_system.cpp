#include "platform/file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace orreryui {
namespace {

// Repeats a system call that a signal interrupted.
template <typename Call>
auto Retry(Call call) {
  decltype(call()) result;
  do {
    result = call();
  } while (result == -1 && errno == EINTR);
  return result;
}

// Some file systems can't sync a folder or a file of their own; that is no failed write.
bool SyncDescriptor(int descriptor) {
  return Retry([&] { return ::fsync(descriptor); }) == 0 || errno == EINVAL || errno == ENOTSUP;
}

class PosixFile final : public File {
 public:
  explicit PosixFile(int descriptor) : descriptor_(descriptor) {}
  ~PosixFile() override { ::close(descriptor_); }
  PosixFile(const PosixFile&) = delete;
  PosixFile& operator=(const PosixFile&) = delete;

  std::ptrdiff_t Read(char* buffer, std::size_t size) override {
    return Retry([&] { return ::read(descriptor_, buffer, size); });
  }

  bool Write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const auto written = Retry([&] { return ::write(descriptor_, bytes.data(), bytes.size()); });
      if (written <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }

  bool Seek(std::uint64_t position) override {
    return ::lseek(descriptor_, static_cast<off_t>(position), SEEK_SET) != -1;
  }

  std::optional<std::uint64_t> Size() override {
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) return std::nullopt;
    return static_cast<std::uint64_t>(status.st_size);
  }

  bool Truncate(std::uint64_t size) override {
    return Retry([&] { return ::ftruncate(descriptor_, static_cast<off_t>(size)); }) == 0;
  }

  bool Sync() override { return SyncDescriptor(descriptor_); }

 private:
  const int descriptor_;
};

int OpenFlags(OpenMode mode) {
  switch (mode) {
    case OpenMode::kRead:
      return O_RDONLY;
    case OpenMode::kReadWrite:
      return O_RDWR;
    case OpenMode::kCreate:
      return O_WRONLY | O_CREAT | O_EXCL;
  }
  return O_RDONLY;
}

bool TellsAbsence(int error) { return error == ENOENT || error == ENOTDIR; }

std::string FolderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

class PosixFileSystem final : public FileSystem {
 public:
  std::unique_ptr<File> Open(const std::string& path, OpenMode mode) override {
    // O_NONBLOCK keeps the opening of a pipe from waiting; for a regular file it means nothing.
    const int flags = OpenFlags(mode) | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    const int descriptor = Retry([&] { return ::open(path.c_str(), flags, 0666); });
    if (descriptor == -1) return nullptr;
    auto file = std::make_unique<PosixFile>(descriptor);
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return nullptr;
    return file;
  }

  bool Remove(const std::string& path) override { return ::unlink(path.c_str()) == 0; }

  bool Rename(const std::string& from, const std::string& to) override {
    return std::rename(from.c_str(), to.c_str()) == 0;
  }

  std::optional<FileInfo> Stat(const std::string& path) override {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    FileInfo info;
    if (S_ISREG(status.st_mode)) info.kind = FileInfo::Kind::kFile;
    if (S_ISDIR(status.st_mode)) info.kind = FileInfo::Kind::kFolder;
    info.size = static_cast<std::uint64_t>(status.st_size);
    info.modified = status.st_mtime;
    info.executable = info.kind == FileInfo::Kind::kFile && ::access(path.c_str(), X_OK) == 0;
    return info;
  }

  bool IsMissing(const std::string& path) override {
    struct stat status {};
    return ::stat(path.c_str(), &status) != 0 && TellsAbsence(errno);
  }

  std::optional<std::vector<std::string>> List(const std::string& folder) override {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> handle(::opendir(folder.c_str()), &::closedir);
    if (!handle && !TellsAbsence(errno) && errno != EACCES) return std::nullopt;
    if (!handle) return names;
    errno = 0;
    while (const dirent* entry = ::readdir(handle.get())) {
      const std::string_view name = static_cast<const char*>(entry->d_name);
      if (name != "." && name != "..") names.emplace_back(name);
      errno = 0;
    }
    if (errno != 0) return std::nullopt;
    return names;
  }

  bool SyncFolderOf(const std::string& path) override {
    const std::string folder = FolderOf(path);
    const int descriptor =
        Retry([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    // A folder may be open to writers and closed to readers.
    if (descriptor == -1) return errno == EACCES;
    const bool synced = SyncDescriptor(descriptor);
    ::close(descriptor);
    return synced;
  }
};

FileSystem*& Current() {
  static PosixFileSystem posix;
  static FileSystem* current = &posix;
  return current;
}

}  // namespace

FileSystem& CurrentFileSystem() { return *Current(); }

ScopedFileSystem::ScopedFileSystem(FileSystem& files) : previous_(Current()) { Current() = &files; }

ScopedFileSystem::~ScopedFileSystem() { Current() = previous_; }

std::optional<std::string> ReadAll(File& file) {
  const auto size = file.Size();
  if (!size || !file.Seek(0)) return std::nullopt;
  std::string content;
  content.reserve(*size);
  char block[16384];
  for (;;) {
    const auto count = file.Read(block, sizeof block);
    if (count == 0) return content;
    if (count < 0) return std::nullopt;
    content.append(block, static_cast<std::size_t>(count));
  }
}

}  // namespace orreryui
