// Any bytes are a palette list and a palette file; a list that was read comes back from a rewrite.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "appearance/palette_file.h"
#include "appearance/palette_list.h"
#include "platform/system/file_system.h"

namespace {

using orreryui::FileInfo;
using orreryui::OpenMode;

constexpr char kList[] = "PLTTFILE.DAT";

void Require(bool condition) {
  if (!condition) std::abort();
}

using Bytes = std::shared_ptr<std::string>;

// An open file of a folder in memory.
class Handle : public orreryui::File {
 public:
  explicit Handle(Bytes bytes) : bytes_(std::move(bytes)) {}
  std::ptrdiff_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = bytes_->copy(buffer, size, place_);
    place_ += count;
    return static_cast<std::ptrdiff_t>(count);
  }
  bool Write(std::string_view bytes) override {
    bytes_->replace(place_, bytes.size(), bytes);
    place_ += bytes.size();
    return true;
  }
  bool Seek(std::uint64_t position) override {
    place_ = position;
    return place_ <= bytes_->size();
  }
  std::optional<std::uint64_t> Size() override { return bytes_->size(); }
  bool Truncate(std::uint64_t size) override {
    bytes_->resize(size);
    return true;
  }
  bool Sync() override { return true; }
  bool Lock(std::chrono::milliseconds) override { return true; }
  bool HasName(const std::string&) override { return true; }
  std::uint64_t CountNames() override { return 1; }
  std::optional<orreryui::FileAttributes> Attributes() override { return {{}}; }
  bool SetAttributes(const orreryui::FileAttributes&) override { return true; }

 private:
  Bytes bytes_;
  std::size_t place_ = 0;
};

class Folder : public orreryui::FileSystem {
 public:
  std::map<std::string, Bytes> files;

  std::unique_ptr<orreryui::File> Open(const std::string& path, OpenMode mode) override {
    const bool is_new = mode == OpenMode::kCreate || mode == OpenMode::kCreatePrivate;
    const bool may_be_new = is_new || mode == OpenMode::kOpenOrCreate;
    if (IsMissing(path) ? !may_be_new : is_new) return nullptr;
    Bytes& bytes = files[path];
    if (!bytes) bytes = std::make_shared<std::string>();
    return std::make_unique<Handle>(bytes);
  }
  bool Remove(const std::string& path) override { return files.erase(path) == 1; }
  bool Rename(const std::string& from, const std::string& to) override {
    auto file = files.extract(from);
    if (file.empty()) return false;
    files[to] = file.mapped();
    return true;
  }
  std::optional<std::string> Target(const std::string& path) override { return path; }
  std::optional<FileInfo> Stat(const std::string& path) override {
    if (IsMissing(path)) return std::nullopt;
    return FileInfo{FileInfo::Kind::kFile, files[path]->size(), 0, false};
  }
  bool IsMissing(const std::string& path) override { return !files.contains(path); }
  std::optional<std::vector<std::string>> List(const std::string&) override {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files) names.push_back(name);
    return names;
  }
  bool SyncFolderOf(const std::string&) override { return true; }
};

void CheckPalette() {
  const auto points = orreryui::ReadPalette(kList);
  Require(points.size() <= orreryui::kMostPalettePoints);
  for (const auto& point : points) {
    Require(point.level >= 0 && point.level < orreryui::kLevels && point.colour <= 0xFFFFFF);
  }
  const auto colours = orreryui::InterpolatedColours(points);
  if (points.size() > 1) {
    Require(colours[static_cast<std::size_t>(points.back().level)] == points.back().colour);
  }
  for (const auto colour : colours) Require(colour <= 0xFFFFFF);
}

// The list with an entry more has the old ones in front, the new one, and the same bytes behind.
// Without it, it has the old ones again.
void CheckList(const Folder& folder) {
  const auto before = orreryui::ReadPaletteList("");
  Require(before.complete && before.entries.size() <= orreryui::kMostPalettes);
  Require(folder.files.at(kList)->ends_with(before.rest));
  if (before.entries.size() == orreryui::kMostPalettes) return;
  Require(orreryui::AddPaletteEntry("", {"name", "file"}, "rows"));
  auto list = orreryui::ReadPaletteList("");
  Require(list.entries.size() == before.entries.size() + 1 && list.rest == before.rest);
  Require(list.entries.back() == orreryui::PaletteEntry{"name", "file"});
  for (const auto& entry : before.entries) {
    // A line at the limit that lacked its dollar gets it, and falls into two.
    if (entry.name.GetLength() + entry.file.GetLength() > 96) return;
  }
  Require(orreryui::RemovePaletteEntry("", list, before.entries.size()));
  Require(orreryui::ReadPaletteList("").entries == before.entries && list.rest == before.rest);
  Require(folder.files.size() == (folder.files.contains("file") ? 2 : 1));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Folder folder;
  folder.files[kList] = std::make_shared<std::string>(reinterpret_cast<const char*>(data), size);
  orreryui::ScopedFileSystem scope(folder);
  CheckPalette();
  CheckList(folder);
  return 0;
}
