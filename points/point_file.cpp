#include "points/point_file.h"

#include "frame/line_file.h"
#include "points/album_file.h"
#include "points/packed_point.h"

namespace orreryui {

std::vector<CString> ReadAlbumPoints(const CString& path) {
  return PackPointLines(ReadAlbumLines(path));
}

std::vector<CString> ReadPointFile(const CString& path) {
  std::vector<CString> points;
  LineReader reader(path, kDataLineLimit);
  CString line;
  while (points.size() < kMostDataLines && reader.ReadLine(line)) {
    if (!line.IsEmpty()) points.push_back(PackPointLine(line));
  }
  return points;
}

}  // namespace orreryui
