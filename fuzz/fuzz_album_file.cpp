// Any bytes are an album of at most 99 lines, none of them too long or one to be skipped.
#include "fuzz/input.h"
#include "fuzz/one_file.h"
#include "points/album_file.h"

void Check(std::string_view input) {
  orreryui::OneFile files(input);
  const orreryui::ScopedFileSystem scope(files);
  const auto lines = orreryui::ReadAlbumLines("a.alb");
  Require(lines.size() <= orreryui::kMostDataLines);
  for (const orreryui::CString& line : lines) {
    Require(!line.IsEmpty() && line.GetLength() <= 199);
    Require(line[0] != ';' && line[0] != 'M' && line != orreryui::kEndMarker);
    Require(line.Find('\n') < 0);
  }
}
