// The one door to the file system: whatever reads, writes, lists, renames or removes a file asks
// CurrentFileSystem(). Paths are the system's own (see platform/system/path.h for the way there).
//
// Failure is a return value, nothing throws. Only regular files are opened; a folder, a pipe or a
// device is refused, so that no call waits for another program.
#ifndef ORRERYUI_PLATFORM_SYSTEM_FILE_SYSTEM_H_
#define ORRERYUI_PLATFORM_SYSTEM_FILE_SYSTEM_H_

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orreryui {

enum class OpenMode {
  kRead,
  kReadWrite,      // the file must exist; nothing of it changes yet
  kAppend,         // like kReadWrite, but each write goes to the end, wherever others have moved it
  kCreate,         // to read and write; fails if the name is taken
  kCreatePrivate,  // like kCreate, for nobody but this user until it gets other attributes
  kOpenOrCreate,   // to read and write; a symbolic link is refused
};

// Who owns a file and who may do what with it: what a file that takes another one's place takes
// over from it.
struct FileAttributes {
  std::uint32_t mode = 0;
  std::uint32_t owner = 0;
  std::uint32_t group = 0;
  std::vector<std::pair<std::string, std::string>> extended;  // access lists among them

  bool operator==(const FileAttributes&) const = default;
};

// An open file, closed when it goes. Read and Write go on where the last of them, or Seek, stopped.
// A file that may not become larger refuses the write, and the process gets no signal for it.
class File {
 public:
  virtual ~File() = default;

  // The number of bytes read, fewer than `size` only if there are no more at the moment; 0 at the
  // end of the file, -1 on failure.
  virtual std::ptrdiff_t Read(char* buffer, std::size_t size) = 0;

  // True if all bytes were taken. After a failure some of them may have been.
  virtual bool Write(std::string_view bytes) = 0;

  virtual bool Seek(std::uint64_t position) = 0;
  virtual std::optional<std::uint64_t> Size() = 0;
  virtual std::optional<std::time_t> Modified() = 0;  // seconds since 1970, UTC
  virtual bool Truncate(std::uint64_t size) = 0;

  // Returns once the bytes are on the disk.
  virtual bool Sync() = 0;

  // Takes the file's lock, which binds those alone who ask for it and which one open file has at a
  // time, until that is closed. False if another has it for as long as `patience`. True also where
  // the file system has no locks.
  virtual bool Lock(std::chrono::milliseconds patience) = 0;

  // Whether `path` leads to this file. It may have been removed since, or another have its name.
  virtual bool HasName(const std::string& path) = 0;

  // How many names the file has; 0 if that can't be told.
  virtual std::uint64_t CountNames() = 0;

  // Setting them is true if the file has exactly these afterwards.
  virtual std::optional<FileAttributes> Attributes() = 0;
  virtual bool SetAttributes(const FileAttributes& attributes) = 0;
};

struct FileInfo {
  enum class Kind { kFile, kFolder, kOther };
  Kind kind = Kind::kOther;
  std::uint64_t size = 0;
  std::time_t modified = 0;  // seconds since 1970, UTC
  // What tells it from everything else on this machine, whatever the path that leads to it.
  std::pair<std::uint64_t, std::uint64_t> identity;
};

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // Null if the file can't be opened in this way. A created file gets the mode that the process's
  // umask leaves of rw for all, and no open file is handed on to a program that is started.
  virtual std::unique_ptr<File> Open(const std::string& path, OpenMode mode) = 0;

  virtual bool Remove(const std::string& path) = 0;  // a file, not a folder

  // What had the name `to` is replaced by the file `from` in one step: at each moment the name
  // leads to the old file or to the new one.
  virtual bool Rename(const std::string& from, const std::string& to) = 0;

  // Where the symbolic links that begin with `path` end; that need not exist. It is `path` itself
  // if that is none. Nothing if it can't be told.
  virtual std::optional<std::string> Target(const std::string& path) = 0;

  // Nothing if there is no such name, or if that can't be told.
  virtual std::optional<FileInfo> Stat(const std::string& path) = 0;

  // Whether it is a file that this process may start.
  virtual bool IsProgram(const std::string& path) = 0;

  // True if nothing has that name, or a symbolic link has it that leads to nothing. False also if
  // that can't be told.
  virtual bool IsMissing(const std::string& path) = 0;

  // The names in a folder, in no order, without "." and "..". None if there is no such folder or
  // this process may not read it; nothing if it can't be read for another reason.
  virtual std::optional<std::vector<std::string>> List(const std::string& folder) = 0;

  // Returns once the names in the folder that holds `path` are on the disk. True also where the
  // system has no way to see to that.
  virtual bool SyncFolderOf(const std::string& path) = 0;
};

// The system's own files, unless a ScopedFileSystem has put another in their place.
FileSystem& CurrentFileSystem();

// Puts a file system in the place of the current one for as long as the object lives. `files` must
// live longer. Objects nest; the last one counts.
class ScopedFileSystem {
 public:
  explicit ScopedFileSystem(FileSystem& files);
  ~ScopedFileSystem();
  ScopedFileSystem(const ScopedFileSystem&) = delete;
  ScopedFileSystem& operator=(const ScopedFileSystem&) = delete;

 private:
  FileSystem* previous_;
};

// What stands in front of the name in a path: the folder with its separator, or nothing. And the
// name.
std::string FolderOf(const std::string& path);
std::string NameOf(const std::string& path);

// The whole content of an open file, from its start, or nothing if it can't be read.
std::optional<std::string> ReadAll(File& file);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_SYSTEM_FILE_SYSTEM_H_
