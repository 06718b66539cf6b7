#include "appearance/region_string.h"

#include <cstdlib>

namespace orreryui {
namespace {

constexpr char kSeparator = '|';
constexpr char kSingleTail[] = "1";

}  // namespace

Region DecodeRegion(CString text) {
  Region region;
  for (int& slot : region.state) {
    const int end = text.Find(kSeparator);
    if (end < 0) break;
    slot = std::atoi(text.Left(end));
    text = text.Mid(end + 1);
  }
  region.single = text == kSingleTail;
  return region;
}

CString EncodeRegion(const RegionState& state) {
  CString text;
  CString field;
  for (const int slot : state) {
    field.Format("%d%c", slot, kSeparator);
    text += field;
  }
  return text + kSingleTail;
}

}  // namespace orreryui
