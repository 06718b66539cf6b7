// The lists of the stored maps: one of the route maps, "RoutMstr.dat", and one of the area maps,
// "AreaMstr.dat", each in the folder of the maps. An entry is a line:
//
//   name@path of the map's member file
//
// An entry without @ has no name, and the whole line is its path. Empty lines and lines that begin
// with ; are skipped, and gone after a rewrite. Names needn't differ. Paths and names are in code
// page 932; the folder ends in its separator.
//
// A list changes together with its member files (frame/file_changes.h).
#ifndef ORRERYUI_ROUTES_MASTER_LIST_H_
#define ORRERYUI_ROUTES_MASTER_LIST_H_

#include <orreryui/cstring.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "frame/file_changes.h"

namespace orreryui {

enum class MapKind { kRoute = 2, kArea = 3 };

// By a host's number: 0 is a route, any other one an area.
inline MapKind MapKindOf(int number) { return number == 0 ? MapKind::kRoute : MapKind::kArea; }

// As many entries as are read. Those behind them stay in the file, whatever is done to it.
inline constexpr std::size_t kMostMaps = 512;

struct MasterList {
  std::vector<CString> entries;  // whole lines, in file order
  std::string rest;              // what stands in the file behind kMostMaps entries, byte for byte
  bool opened = false;
  bool complete = true;  // false: it couldn't be opened, though it may exist, or reading broke off
};

struct MasterEntry {
  CString name;
  CString path;
};

CString MasterListPath(const CString& folder, MapKind kind);

// A change that was cut off half-way is finished or taken back first. A list that is missing has no
// entries; a line of more than 199 bytes gives several.
MasterList ReadMasterList(const CString& path);

// The list as a change of it finds it.
MasterList ReadMasterList(const FileChanges& changes, const CString& path);

MasterEntry SplitMasterEntry(const CString& line);
CString JoinMasterEntry(const MasterEntry& entry);

// What dialogs show for an entry: its name, or the whole line if it has no @.
CString MasterEntryLabel(const CString& entry);

// Whether a reader gets the entry back: one line that isn't skipped, isn't cut and
// falls apart at an @. An @ in the name ends the name there.
bool IsMasterEntry(const MasterEntry& entry);

// Ends a change with one more entry behind all that the list holds; a list that is missing is made.
// False: all is as it was before the change.
bool AppendMasterEntry(FileChanges& changes, const CString& path, const MasterEntry& entry);

// Ends a change with these entries in the list, but for the one at `left_out`.
bool RewriteMasterList(FileChanges& changes, const MasterList& list,
                       std::optional<std::size_t> left_out = std::nullopt);

}  // namespace orreryui

#endif  // ORRERYUI_ROUTES_MASTER_LIST_H_
