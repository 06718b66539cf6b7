#include "frame/line_file.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>

#include "frame/replace_file.h"
#include "platform/system/path.h"

namespace orreryui {
namespace {

constexpr std::size_t kBlockSize = 32768;

// Whether the next line has to begin with the end of the one before; nothing if that can't be read.
std::optional<bool> LacksLastLineEnd(File& file, std::uint64_t size) {
  if (size == 0) return false;
  char last = '\0';
  if (!file.Seek(size - 1) || file.Read(&last, 1) != 1) return std::nullopt;
  return last != '\n';
}

// Cuts off what a write has added, unless others have written behind it.
bool TakeBack(File& file, std::uint64_t old_size, std::uint64_t added) {
  const auto size = file.Size();
  if (!size || *size > old_size + added || !file.Truncate(old_size)) return false;
  file.Sync();
  return true;
}

bool AppendTo(File& file, const std::string& line) {
  const auto size = file.Size();
  const auto lacks_line_end = size ? LacksLastLineEnd(file, *size) : std::nullopt;
  if (!lacks_line_end) return false;
  const std::string bytes = *lacks_line_end ? "\r\n" + line : line;
  const bool written = file.Write(bytes);
  if (written && file.Sync()) return true;
  // A whole line that can't be cut off stands in the file, and others will read it.
  return !TakeBack(file, *size, bytes.size()) && written;
}

}  // namespace

LineReader::LineReader(const char* path, std::size_t limit)
    : file_(CurrentFileSystem().Open(NativePath(path), OpenMode::kRead)),
      missing_(!file_ && orreryui::IsMissing(path)),
      longest_(limit - 1),
      // Room for a whole line with its CR LF, wherever it begins.
      block_size_(file_ ? std::max(kBlockSize, longest_ + 2) : 0),
      block_(std::make_unique_for_overwrite<char[]>(block_size_)) {}

// Moves the unread bytes to the front and reads what fits behind them. False if nothing came.
bool LineReader::Fill() {
  if (!file_ || at_end_) return false;
  std::memmove(block_.get(), block_.get() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  const auto count = file_->Read(block_.get() + end_, block_size_ - end_);
  failed_ = count < 0;
  at_end_ = count <= 0;
  if (!at_end_) end_ += static_cast<std::size_t>(count);
  holds_nul_ = std::memchr(block_.get(), '\0', end_) != nullptr;
  return !at_end_;
}

// The line feed that ends the next line, or null if the line has none or is too long.
const char* LineReader::FindLineFeed() {
  const std::size_t window = longest_ + 2;  // a whole line with its CR LF
  for (;;) {
    const std::size_t size = std::min(end_ - begin_, window);
    const void* const found = std::memchr(block_.get() + begin_, '\n', size);
    if (found || size == window || !Fill()) return static_cast<const char*>(found);
  }
}

bool LineReader::ReadLine(std::string_view& line) {
  const char* const line_feed = FindLineFeed();
  bytes_ = {};
  if (!line_feed && failed_) {
    line = {};
    return false;
  }
  const char* const begin = block_.get() + begin_;
  std::size_t length = line_feed ? static_cast<std::size_t>(line_feed - begin) : end_ - begin_;
  std::size_t taken = length + (line_feed ? 1 : 0);
  if (taken == 0) {
    line = {};
    return std::exchange(empty_line_due_, false);
  }
  if (line_feed && length > 0 && begin[length - 1] == '\r') --length;
  empty_line_due_ = line_feed != nullptr;
  if (length > longest_) length = taken = longest_;
  begin_ += taken;
  bytes_ = std::string_view(begin, taken);
  line = bytes_.substr(0, length);
  if (holds_nul_) line = line.substr(0, line.find('\0'));
  return true;
}

bool LineReader::ReadLine(CString& line) {
  std::string_view view;
  const bool read = ReadLine(view);
  line = CString(view.data(), static_cast<int>(view.size()));
  return read;
}

std::string LineReader::ReadRest() {
  std::string rest;
  do {
    rest.append(block_.get() + begin_, end_ - begin_);
    begin_ = end_;
  } while (Fill());
  empty_line_due_ = false;
  return rest;
}

bool CreateFile(const char* path, std::string_view content) {
  const ListedOnce listed_once;
  const auto target = CurrentFileSystem().Target(NativePath(path));
  if (!target) return false;
  if (ReplaceFile(*target, SecondName(*target), content)) return true;
  return IsMissing(path) && CreateWhole(*target, content);
}

bool AppendLine(const char* path, const char* line, IfMissing if_missing) {
  const ListedOnce listed_once;
  const auto target = CurrentFileSystem().Target(NativePath(path));
  if (!target) return false;
  const std::string bytes = std::string(line) + "\r\n";
  if (const auto file = OpenLocked(*target, OpenMode::kAppend)) {
    RemoveLeftBehind(SecondName(*target));
    return AppendTo(*file, bytes);
  }
  return if_missing == IfMissing::kCreate && IsMissing(path) && CreateWhole(*target, bytes);
}

bool RewriteInPlace(const char* path, std::string_view content) {
  const auto target = CurrentFileSystem().Target(NativePath(path));
  return target && ReplaceFile(*target, SecondName(*target), content);
}

bool ReplaceThroughNewFile(const char* path, const char* new_path, std::string_view content) {
  const auto target = CurrentFileSystem().Target(NativePath(path));
  if (!target) return false;
  return ReplaceFile(*target, FolderOf(*target) + NameToCreate(new_path), content);
}

bool FileExists(const char* path) {
  return CurrentFileSystem().Open(NativePath(path), OpenMode::kRead) != nullptr;
}

bool RemoveFile(const char* path) {
  FileSystem& files = CurrentFileSystem();
  const std::string native = NativePath(path);
  if (!files.Remove(native)) return false;
  files.SyncFolderOf(native);
  return true;
}

bool RenameFile(const char* from, const char* to) {
  FileSystem& files = CurrentFileSystem();
  const std::string old_name = NativePath(from);
  const std::string new_name = NativePath(to);
  if (!files.IsMissing(new_name) || !files.Rename(old_name, new_name)) return false;
  if (files.SyncFolderOf(new_name)) return true;
  return !files.Rename(new_name, old_name);
}

}  // namespace orreryui
