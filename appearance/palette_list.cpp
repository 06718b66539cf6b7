#include "appearance/palette_list.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <utility>

#include "frame/line_file.h"

namespace orreryui {
namespace {

constexpr std::size_t kLineLimit = 99;

CString ListPath(const CString& folder) { return folder + "PLTTFILE.DAT"; }

// The bytes of the list behind its first `count` lines; nothing if they can't be read.
std::optional<std::string> BytesBehind(const CString& folder, std::size_t count) {
  LineReader reader(ListPath(folder), kLineLimit);
  std::string_view line;
  for (std::size_t i = 0; i < count; ++i) reader.ReadLine(line);
  const std::string rest = reader.ReadRest();
  if (!reader.IsOpen() || reader.Failed()) return std::nullopt;
  return rest;
}

std::string TextOf(const std::vector<PaletteEntry>& entries) {
  std::string text;
  for (const PaletteEntry& entry : entries) {
    text.append(entry.name).append("$").append(entry.file).append("\r\n");
  }
  return text;
}

CString FileOfPlace(std::size_t number) {
  CString file;
  file.Format("Orbis%d.plt", static_cast<int>(number) + 1);
  return file;
}

CString LowerCase(CString text) {
  text.MakeLower();
  return text;
}

// Names on the disk are found without regard to case.
bool IsSameFile(const CString& one, const CString& other) {
  return LowerCase(one) == LowerCase(other);
}

// Whether another line of the list names the file of entry `number` as well.
bool IsShared(const PaletteList& list, std::size_t number) {
  const CString& file = list.entries[number].file;
  for (std::size_t i = 0; i < list.entries.size(); ++i) {
    if (i != number && IsSameFile(list.entries[i].file, file)) return true;
  }
  std::istringstream rest(list.rest);
  for (std::string line; std::getline(rest, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (IsSameFile(PaletteEntryOf(line.c_str()).file, file)) return true;
  }
  return false;
}

// Files of one folder that get other names, and get their old ones back if not all goes well.
class Renames {
 public:
  explicit Renames(const CString& folder) : folder_(folder) {}
  ~Renames() {
    for (auto done = done_.rbegin(); done != done_.rend(); ++done) {
      RenameFile(done->second, done->first);
    }
  }
  Renames(const Renames&) = delete;
  Renames& operator=(const Renames&) = delete;

  bool Rename(const CString& from, const CString& to) {
    if (!FileExists(folder_ + from) || !RenameFile(folder_ + from, folder_ + to)) return false;
    done_.emplace_back(folder_ + from, folder_ + to);
    return true;
  }
  void Keep() { done_.clear(); }

 private:
  CString folder_;
  std::vector<std::pair<CString, CString>> done_;
};

// A name that no file has, for one that is about to go.
CString NameAside(const CString& folder, const CString& file) {
  CString name;
  int number = 0;
  do {
    name.Format("%s.%d", static_cast<const char*>(file), ++number);
  } while (FileExists(folder + name));
  return name;
}

// Gives the entries behind `number`, which has left, the files of their new places.
bool MoveUp(const CString& folder, PaletteList& list, std::size_t number, Renames& renames) {
  for (std::size_t place = number; place < list.entries.size(); ++place) {
    CString& file = list.entries[place].file;
    const CString new_file = FileOfPlace(place);
    if (!IsSameFile(file, FileOfPlace(place + 1)) || IsShared(list, place)) continue;
    if (FileExists(folder + new_file)) continue;
    if (!renames.Rename(file, new_file)) return false;
    file = new_file;
  }
  return true;
}

}  // namespace

PaletteEntry PaletteEntryOf(const CString& line) {
  const int position = line.Find('$');
  return {line.Mid(0, position), line.Mid(position + 1)};
}

bool FitsInALine(const PaletteEntry& entry) {
  const int length = entry.name.GetLength() + 1 + entry.file.GetLength();
  return length < static_cast<int>(kLineLimit);
}

PaletteList ReadPaletteList(const CString& folder, std::size_t most) {
  PaletteList list;
  LineReader reader(ListPath(folder), kLineLimit);
  CString line;
  while (list.entries.size() < most && reader.ReadLine(line) && !line.IsEmpty()) {
    list.entries.push_back(PaletteEntryOf(line));
  }
  const auto rest = BytesBehind(folder, list.entries.size());
  list.rest = rest.value_or("");
  list.complete = reader.IsOpen() == rest.has_value() && !reader.Failed();
  return list;
}

CString ReadPaletteLine(const CString& folder, int number) {
  LineReader reader(ListPath(folder), kLineLimit);
  CString line;
  CString next;
  for (int i = 0; reader.ReadLine(next); ++i) {
    line = next;
    if (i == number) break;
  }
  return line;
}

CString NewPaletteFile(const CString& folder, const PaletteList& list) {
  auto number = static_cast<std::size_t>(std::count_if(
      list.entries.begin(), list.entries.end(),
      [](const PaletteEntry& entry) { return LowerCase(entry.file).Find("orbis") >= 0; }));
  while (FileExists(folder + FileOfPlace(number))) ++number;
  return FileOfPlace(number);
}

bool AddPaletteEntry(const CString& folder, const PaletteList& list, const PaletteEntry& entry) {
  if (!list.complete) return false;
  const CString path = ListPath(folder);
  if (list.rest.empty()) {
    return AppendLine(path, entry.name + "$" + entry.file, IfMissing::kFail);
  }
  // Behind an empty line the entry would be lost to readers.
  return RewriteInPlace(path, TextOf(list.entries) + TextOf({entry}) + list.rest);
}

bool RemovePaletteEntry(const CString& folder, PaletteList& list, std::size_t number) {
  const CString path = ListPath(folder);
  const auto old_text = BytesBehind(folder, 0);
  if (!list.complete || !old_text) return false;
  const CString& file = list.entries[number].file;

  Renames renames(folder);
  CString aside;
  if (!IsShared(list, number)) {
    aside = NameAside(folder, file);
    if (!renames.Rename(file, aside)) return false;
  }
  PaletteList kept = list;
  kept.entries.erase(kept.entries.begin() + static_cast<std::ptrdiff_t>(number));
  if (!MoveUp(folder, kept, number, renames)) return false;
  if (!CreateFile(path, TextOf(kept.entries) + kept.rest)) return false;
  if (!aside.IsEmpty() && !RemoveFile(folder + aside)) {
    CreateFile(path, *old_text);
    return false;
  }
  renames.Keep();
  list = kept;
  return true;
}

}  // namespace orreryui
