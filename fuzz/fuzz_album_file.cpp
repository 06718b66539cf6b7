// Any bytes are an album of at most 99 lines, none of them too long or one to be skipped.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "fuzz/one_file.h"
#include "points/album_file.h"

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orreryui::OneFile files({reinterpret_cast<const char*>(data), size});
  const orreryui::ScopedFileSystem scope(files);
  const std::vector<orreryui::CString> lines = orreryui::ReadAlbumLines("a.alb");
  Require(lines.size() <= orreryui::kMostDataLines);
  for (const orreryui::CString& line : lines) {
    Require(!line.IsEmpty() && line.GetLength() <= 199);
    Require(line[0] != ';' && line[0] != 'M' && line != orreryui::kEndMarker);
    Require(line.Find('\n') < 0);
  }
  return 0;
}
