#include "routes/maps.h"

#include <algorithm>
#include <optional>

#include "frame/entries.h"
#include "routes/member_file.h"

namespace orreryui {
namespace {

// Where the list has the entry by now; nothing if it has it no more, or what it holds isn't known.
std::optional<std::size_t> Find(const MasterList& shown, std::size_t index, MasterList& list) {
  if (index >= shown.entries.size()) return std::nullopt;
  const auto entry = FindAgain(shown.entries, index, list.entries);
  if (!list.complete || entry == list.entries.end()) return std::nullopt;
  return static_cast<std::size_t>(entry - list.entries.begin());
}

}  // namespace

bool RegisterMap(const CString& folder, MapKind kind, const CString& name,
                 const std::vector<CString>& lines) {
  const CString list_path = MasterListPath(folder, kind);
  if (!std::all_of(lines.begin(), lines.end(), IsMemberLine)) return false;
  FileChanges changes(list_path);
  const CString member_path = folder + MakeMemberName(folder, kind);
  WriteMemberFile(changes, member_path, lines);
  return AppendMasterEntry(changes, list_path, {name, member_path});
}

bool RenameMap(const CString& path, MasterList& shown, std::size_t& index,
               const MasterEntry& renamed) {
  FileChanges changes(path);
  MasterList list = ReadMasterList(changes, path);
  const auto place = Find(shown, index, list);
  if (!place || !IsMasterEntry(renamed)) return false;
  list.entries[*place] = JoinMasterEntry(renamed);
  if (!RewriteMasterList(changes, list)) return false;
  index = *place;
  shown = list;
  return true;
}

bool DeleteMap(const CString& path, MasterList& shown, std::size_t index,
               const CString& member_path) {
  FileChanges changes(path);
  MasterList list = ReadMasterList(changes, path);
  const auto place = Find(shown, index, list);
  if (!place) return false;
  changes.Remove(member_path);
  if (!RewriteMasterList(changes, list, *place)) return false;
  list.entries.erase(list.entries.begin() + static_cast<std::ptrdiff_t>(*place));
  shown = list;
  return true;
}

}  // namespace orreryui
