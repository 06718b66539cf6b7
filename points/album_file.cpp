#include "points/album_file.h"

#include <string>

#include "frame/line_file.h"

namespace orreryui {
namespace {

CString Compose(const DataLine& data) {
  CString line = data.place + ' ' + data.latitude + ' ' + data.longitude + ' ' + data.item;
  if (!data.picture.IsEmpty()) line += ' ' + data.picture;
  if (!data.text_file.IsEmpty()) line += ' ' + data.text_file;
  return line;
}

bool IsWritten(const CString& line) {
  return line[0] != ';' && line.GetLength() < static_cast<int>(kDataLineLimit);
}

bool HoldsData(const CString& line) { return !line.IsEmpty() && line[0] != ';' && line[0] != 'M'; }

}  // namespace

bool AppendAlbumLine(const CString& path, bool first, const DataLine& data) {
  const CString line = Compose(data);
  if (!IsWritten(line)) return false;
  return first ? CreateFile(path, std::string(line) + "\r\n")
               : AppendLine(path, line, IfMissing::kFail);
}

bool CreateEmptyAlbum(const CString& path) { return CreateFile(path, ""); }

std::vector<CString> ReadAlbumLines(const CString& path) {
  std::vector<CString> lines;
  LineReader reader(path, kDataLineLimit);
  CString line;
  while (lines.size() < kMostDataLines && reader.ReadLine(line) && line != kEndMarker) {
    if (HoldsData(line)) lines.push_back(line);
  }
  return lines;
}

}  // namespace orreryui
