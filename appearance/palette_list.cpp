#include "appearance/palette_list.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <string_view>
#include <utility>

#include "frame/entries.h"
#include "frame/file_changes.h"
#include "frame/line_file.h"
#include "platform/system/path.h"

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

// Whether a line of the list other than that of entry `except` names the file.
bool IsNamed(const PaletteList& list, const CString& file, std::size_t except) {
  for (std::size_t i = 0; i < list.entries.size(); ++i) {
    if (i != except && IsSameFile(list.entries[i].file, file)) return true;
  }
  std::istringstream rest(list.rest);
  for (std::string line; std::getline(rest, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (IsSameFile(PaletteEntryOf(line.c_str()).file, file)) return true;
  }
  return false;
}

// A list as it stands in the file, whatever change of it is under way.
PaletteList ReadList(const CString& folder, std::size_t most) {
  PaletteList list;
  LineReader reader(ListPath(folder), kLineLimit);
  CString line;
  while (list.entries.size() < most && reader.ReadLine(line) && !line.IsEmpty()) {
    list.entries.push_back(PaletteEntryOf(line));
  }
  const auto rest = BytesBehind(folder, list.entries.size());
  list.rest = rest.value_or("");
  list.complete = reader.IsMissing() || (reader.IsOpen() && !reader.Failed() && rest);
  return list;
}

// Whether the file lies in the folder of the list itself.
bool IsBeside(const CString& file) {
  return !file.IsEmpty() && !LeadsOut(file) && file.Find('\\') < 0 && file.Find('/') < 0;
}

// The removal of an entry, step by step.
class Removal {
 public:
  explicit Removal(const CString& folder) : folder_(folder), changes_(ListPath(folder)) {}

  // Takes the file of entry `number` away, unless it lies elsewhere or another line names it.
  void TakeFile(const PaletteList& list, std::size_t number) {
    const CString& file = list.entries[number].file;
    if (!IsBeside(file) || IsNamed(list, file, number)) return;
    if (MayExist(file)) changes_.Remove(folder_ + file);
    gone_.push_back(file);
  }

  // Gives the entries from `number` on, which have moved up, the files of their new places.
  void MoveUp(PaletteList& list, std::size_t number) {
    for (std::size_t place = number; place < list.entries.size(); ++place) {
      CString& file = list.entries[place].file;
      const CString new_file = FileOfPlace(place);
      if (!IsSameFile(file, FileOfPlace(place + 1)) || IsNamed(list, file, place)) continue;
      if (IsNamed(list, new_file, place) || !WillBeFree(new_file)) continue;
      if (MayExist(file)) changes_.Rename(folder_ + file, folder_ + new_file);
      gone_.push_back(std::exchange(file, new_file));
    }
  }

  bool Commit(const PaletteList& list) { return changes_.Commit(TextOf(list.entries) + list.rest); }

 private:
  // True also if that can't be told, so that the step is refused.
  bool MayExist(const CString& file) const { return !IsMissing(std::string_view(folder_ + file)); }
  bool WillBeFree(const CString& file) const {
    const auto is_it = [&](const CString& name) { return IsSameFile(name, file); };
    return std::any_of(gone_.begin(), gone_.end(), is_it) || !Exists(folder_ + file);
  }

  CString folder_;
  FileChanges changes_;
  std::vector<CString> gone_;  // names that the steps so far leave to nobody
};

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
  const bool finished = FinishChanges(ListPath(folder));
  PaletteList list = ReadList(folder, most);
  list.complete = list.complete && finished;
  return list;
}

CString ReadPaletteLine(const CString& folder, int number) {
  FinishChanges(ListPath(folder));
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
  while (Exists(folder + FileOfPlace(number))) ++number;
  return FileOfPlace(number);
}

bool AddPaletteEntry(const CString& folder, const PaletteEntry& entry, const std::string& text) {
  FileChanges changes(ListPath(folder));
  const PaletteList list = ReadList(folder, kMostPalettes);
  const auto bytes = BytesBehind(folder, 0);
  if (!list.complete || !bytes || !bytes->ends_with(list.rest)) return false;
  // Behind an empty line the entry would be lost to readers.
  std::string content = bytes->substr(0, bytes->size() - list.rest.size());
  if (!content.empty() && !content.ends_with('\n')) content += "\r\n";
  changes.Create(folder + entry.file, text);
  return changes.Commit(content + TextOf({entry}) + list.rest);
}

bool RemovePaletteEntry(const CString& folder, PaletteList& shown, std::size_t number) {
  Removal removal(folder);
  PaletteList list = ReadList(folder, kMostPalettes);
  const auto entry = FindAgain(shown.entries, number, list.entries);
  if (!list.complete || entry == list.entries.end()) return false;
  const auto place = static_cast<std::size_t>(entry - list.entries.begin());
  removal.TakeFile(list, place);
  list.entries.erase(entry);
  removal.MoveUp(list, place);
  if (!removal.Commit(list)) return false;
  shown = list;
  return true;
}

}  // namespace orreryui
