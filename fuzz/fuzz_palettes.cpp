// Any bytes are a palette list and a palette file; a list that was read comes back from a rewrite.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "appearance/palette_file.h"
#include "appearance/palette_list.h"
#include "platform/file_system.h"

namespace {

using orreryui::FileInfo;
using orreryui::OpenMode;

void Require(bool condition) {
  if (!condition) std::abort();
}

// A folder in memory in which every name leads to the one file.
class OneFile : public orreryui::FileSystem {
 public:
  explicit OneFile(std::string bytes) : bytes_(std::move(bytes)) {}

  const std::string& Bytes() const { return bytes_; }

  std::unique_ptr<orreryui::File> Open(const std::string&, OpenMode mode) override {
    if (mode == OpenMode::kCreate) return nullptr;
    return std::make_unique<Handle>(bytes_);
  }
  bool Remove(const std::string&) override { return false; }
  bool Rename(const std::string&, const std::string&) override { return false; }
  std::optional<std::string> Target(const std::string& path) override { return path; }
  std::optional<FileInfo> Stat(const std::string&) override {
    return FileInfo{FileInfo::Kind::kFile, bytes_.size(), 0, false};
  }
  bool IsMissing(const std::string&) override { return false; }
  std::optional<std::vector<std::string>> List(const std::string&) override { return std::nullopt; }
  bool SyncFolderOf(const std::string&) override { return true; }

 private:
  class Handle : public orreryui::File {
   public:
    explicit Handle(std::string& bytes) : bytes_(bytes) {}
    std::ptrdiff_t Read(char* buffer, std::size_t size) override {
      const std::size_t count = bytes_.substr(place_).copy(buffer, size);
      place_ += count;
      return static_cast<std::ptrdiff_t>(count);
    }
    bool Write(std::string_view bytes) override {
      bytes_.replace(place_, bytes.size(), bytes);
      place_ += bytes.size();
      return true;
    }
    bool Seek(std::uint64_t position) override {
      place_ = position;
      return place_ <= bytes_.size();
    }
    std::optional<std::uint64_t> Size() override { return bytes_.size(); }
    bool Truncate(std::uint64_t size) override {
      bytes_.resize(size);
      return true;
    }
    bool Sync() override { return true; }
    bool Lock(std::chrono::milliseconds) override { return true; }
    bool HasName(const std::string&) override { return true; }
    std::uint64_t CountNames() override { return 2; }  // so that it is never replaced
    std::optional<orreryui::FileAttributes> Attributes() override { return std::nullopt; }
    bool SetAttributes(const orreryui::FileAttributes&) override { return false; }

   private:
    std::string& bytes_;
    std::size_t place_ = 0;
  };

  std::string bytes_;
};

void CheckPalette() {
  const auto points = orreryui::ReadPalette("palette");
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
void CheckList(const OneFile& file) {
  const auto before = orreryui::ReadPaletteList("");
  Require(before.complete && before.entries.size() <= orreryui::kMostPalettes);
  Require(file.Bytes().ends_with(before.rest));
  if (before.entries.size() == orreryui::kMostPalettes) return;
  Require(orreryui::AddPaletteEntry("", before, {"name", "file"}));
  const auto after = orreryui::ReadPaletteList("");
  for (std::size_t i = 0; i < before.entries.size(); ++i) {
    // A line at the limit that lacked its dollar has it now, and falls into two.
    const auto& entry = before.entries[i];
    if (entry.name.GetLength() + entry.file.GetLength() > 96) return;
    Require(after.entries[i].name == entry.name && after.entries[i].file == entry.file);
  }
  Require(after.entries[before.entries.size()].name == "name" && after.rest == before.rest);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  OneFile file(std::string(reinterpret_cast<const char*>(data), size));
  orreryui::ScopedFileSystem scope(file);
  CheckPalette();
  CheckList(file);
  return 0;
}
