// Any text decodes, and what was encoded comes back.
#include <string>

#include "appearance/region_string.h"
#include "fuzz/input.h"

void Check(std::string_view input) {
  const orreryui::Region region = orreryui::DecodeRegion(std::string(input).c_str());
  const orreryui::Region again = orreryui::DecodeRegion(orreryui::EncodeRegion(region.state));
  Require(again.state == region.state && again.single);
}
