// Any text decodes, and what was encoded comes back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "appearance/region_string.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const orreryui::Region region = orreryui::DecodeRegion(text.c_str());
  const orreryui::Region again = orreryui::DecodeRegion(orreryui::EncodeRegion(region.state));
  if (again.state != region.state || !again.single) std::abort();
  return 0;
}
