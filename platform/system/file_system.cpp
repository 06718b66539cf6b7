#include "platform/system/file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <thread>

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

// Keeps from this thread the signal that says that a file may not become larger.
class NoSizeSignal {
 public:
  NoSizeSignal() {
    sigemptyset(&size_signal_);
    sigaddset(&size_signal_, SIGXFSZ);
    sigset_t pending;
    was_pending_ = sigpending(&pending) == 0 && sigismember(&pending, SIGXFSZ) == 1;
    pthread_sigmask(SIG_BLOCK, &size_signal_, &before_);
  }
  ~NoSizeSignal() {
    const int error = errno;
    const timespec no_time{};
    if (!was_pending_) Retry([&] { return sigtimedwait(&size_signal_, nullptr, &no_time); });
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    errno = error;
  }
  NoSizeSignal(const NoSizeSignal&) = delete;
  NoSizeSignal& operator=(const NoSizeSignal&) = delete;

 private:
  sigset_t size_signal_{};
  sigset_t before_{};
  bool was_pending_ = false;
};

// The system refuses longer ones: names of attributes, and the value of one.
constexpr std::size_t kLongestExtended = 65536;

std::vector<std::string> NamesOfExtended(int descriptor) {
  std::string names(kLongestExtended, '\0');
  const auto size = ::flistxattr(descriptor, names.data(), names.size());
  names.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  std::vector<std::string> list;
  for (std::size_t begin = 0; begin < names.size(); begin += list.back().size() + 1) {
    list.emplace_back(names.c_str() + begin);
  }
  return list;
}

std::optional<std::string> Extended(int descriptor, const std::string& name) {
  std::string value(kLongestExtended, '\0');
  const auto size = ::fgetxattr(descriptor, name.c_str(), value.data(), value.size());
  if (size < 0) return std::nullopt;
  value.resize(static_cast<std::size_t>(size));
  return value;
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
    const NoSizeSignal no_signal;
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

  std::optional<std::time_t> Modified() override {
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) return std::nullopt;
    return status.st_mtime;
  }

  bool Truncate(std::uint64_t size) override {
    const NoSizeSignal no_signal;
    return Retry([&] { return ::ftruncate(descriptor_, static_cast<off_t>(size)); }) == 0;
  }

  bool Sync() override { return SyncDescriptor(descriptor_); }

  bool Lock(std::chrono::milliseconds patience) override {
    constexpr std::chrono::milliseconds kPause{5};
    for (; ::flock(descriptor_, LOCK_EX | LOCK_NB) != 0; patience -= kPause) {
      if (errno != EWOULDBLOCK && errno != EINTR) return true;
      if (patience <= patience.zero()) return false;
      std::this_thread::sleep_for(kPause);
    }
    return true;
  }

  bool HasName(const std::string& path) override {
    struct stat own {};
    struct stat named {};
    if (::fstat(descriptor_, &own) != 0 || ::stat(path.c_str(), &named) != 0) return false;
    return own.st_dev == named.st_dev && own.st_ino == named.st_ino;
  }

  std::uint64_t CountNames() override {
    struct stat status {};
    return ::fstat(descriptor_, &status) == 0 ? status.st_nlink : 0;
  }

  std::optional<FileAttributes> Attributes() override {
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) return std::nullopt;
    FileAttributes attributes{status.st_mode & 07777, status.st_uid, status.st_gid, {}};
    for (const std::string& name : NamesOfExtended(descriptor_)) {
      const auto value = Extended(descriptor_, name);
      if (!value) return std::nullopt;
      attributes.extended.emplace_back(name, *value);
    }
    return attributes;
  }

  bool SetAttributes(const FileAttributes& attributes) override {
    const auto now = Attributes();
    if (!now) return false;
    const bool same_owner = now->owner == attributes.owner && now->group == attributes.group;
    if (!same_owner && ::fchown(descriptor_, attributes.owner, attributes.group) != 0) return false;
    for (const auto& [name, value] : attributes.extended) {
      if (Extended(descriptor_, name) == value) continue;
      if (::fsetxattr(descriptor_, name.c_str(), value.data(), value.size(), 0) != 0) return false;
    }
    return ::fchmod(descriptor_, attributes.mode) == 0 && Attributes() == attributes;
  }

 private:
  const int descriptor_;
};

int OpenFlags(OpenMode mode) {
  switch (mode) {
    case OpenMode::kRead:
      return O_RDONLY;
    case OpenMode::kReadWrite:
      return O_RDWR;
    case OpenMode::kAppend:
      return O_RDWR | O_APPEND;
    case OpenMode::kCreate:
    case OpenMode::kCreatePrivate:
      return O_RDWR | O_CREAT | O_EXCL;
    case OpenMode::kOpenOrCreate:
      return O_RDWR | O_CREAT | O_NOFOLLOW;
  }
  return O_RDONLY;
}

bool TellsAbsence(int error) { return error == ENOENT || error == ENOTDIR; }

// What a symbolic link says, from the place where it stands; nothing if `path` is none.
std::optional<std::string> ReadLink(const std::string& path) {
  std::string target(PATH_MAX, '\0');
  const auto size = ::readlink(path.c_str(), target.data(), target.size());
  if (size < 0) return std::nullopt;
  target.resize(static_cast<std::size_t>(size));
  return target.starts_with('/') ? target : FolderOf(path) + target;
}

class PosixFileSystem final : public FileSystem {
 public:
  std::unique_ptr<File> Open(const std::string& path, OpenMode mode) override {
    // O_NONBLOCK keeps the opening of a pipe from waiting; for a regular file it means nothing.
    const int flags = OpenFlags(mode) | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    const mode_t rights = mode == OpenMode::kCreatePrivate ? 0600 : 0666;
    const int descriptor = Retry([&] { return ::open(path.c_str(), flags, rights); });
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

  std::optional<std::string> Target(const std::string& path) override {
    constexpr int kMostLinks = 40;
    std::string target = path;
    for (int i = 0; i < kMostLinks; ++i) {
      auto next = ReadLink(target);
      if (!next && (errno == EINVAL || TellsAbsence(errno))) return target;
      if (!next) return std::nullopt;
      target = std::move(*next);
    }
    return std::nullopt;
  }

  std::optional<FileInfo> Stat(const std::string& path) override {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    FileInfo info;
    if (S_ISREG(status.st_mode)) info.kind = FileInfo::Kind::kFile;
    if (S_ISDIR(status.st_mode)) info.kind = FileInfo::Kind::kFolder;
    info.size = static_cast<std::uint64_t>(status.st_size);
    info.modified = status.st_mtime;
    info.identity = {status.st_dev, status.st_ino};
    return info;
  }

  bool IsProgram(const std::string& path) override {
    const auto info = Stat(path);
    return info && info->kind == FileInfo::Kind::kFile && ::access(path.c_str(), X_OK) == 0;
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
    const std::string folder = FolderOf(path) + ".";
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

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

std::string NameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

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
