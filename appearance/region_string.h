// The region that the host's prefecture map shows, as it travels between the host and the dialogs:
// a text of one number a slot, each with a bar behind it, and a tail.
#ifndef ORRERYUI_APPEARANCE_REGION_STRING_H_
#define ORRERYUI_APPEARANCE_REGION_STRING_H_

#include <orreryui/cstring.h>

#include <array>

namespace orreryui {

// Slot 0 is the whole, slots 1 to 47 are the prefectures by their number in JIS X 0401. A slot is
// on if it is 1.
using RegionState = std::array<int, 48>;

struct Region {
  RegionState state = {};
  bool single = false;  // one slot alone may be on; the tail of the text says so
};

// Any text decodes: a number that is missing or no number is 0, others are taken as they are.
Region DecodeRegion(CString text);

// The text of a region. Its tail always says that one slot alone may be on.
CString EncodeRegion(const RegionState& state);

}  // namespace orreryui

#endif  // ORRERYUI_APPEARANCE_REGION_STRING_H_
