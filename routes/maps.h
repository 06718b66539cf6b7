// The stored maps: each is an entry of a master list and a member file, which come and go as one
// change. What returns true is on the disk; false means that nothing has changed there.
#ifndef ORRERYUI_ROUTES_MAPS_H_
#define ORRERYUI_ROUTES_MAPS_H_

#include <orreryui/cstring.h>

#include <cstddef>
#include <vector>

#include "routes/master_list.h"

namespace orreryui {

// Stores a new map of these lines (MemberLines). False also for a name that the list can't hold,
// and for a line that the member file can't.
bool RegisterMap(const CString& folder, MapKind kind, const CString& name,
                 const std::vector<CString>& lines);

// These look in the list as it is by now for the entry that `shown` has at `index`, and leave in
// `shown` what the list holds then. False also if the entry isn't there any more.

// Puts an entry with another name in its place; the member file keeps its own. `index` is then
// where the entry is by now. False also for an entry that the list can't hold.
bool RenameMap(const CString& path, MasterList& shown, std::size_t& index,
               const MasterEntry& renamed);

// Removes the entry and the member file, which must exist beside the list. Another entry that names
// the same file stays.
bool DeleteMap(const CString& path, MasterList& shown, std::size_t index,
               const CString& member_path);

}  // namespace orreryui

#endif  // ORRERYUI_ROUTES_MAPS_H_
