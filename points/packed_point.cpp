#include "points/packed_point.h"

#include <algorithm>
#include <iterator>

#include "frame/split.h"

namespace orreryui {
bool HoldsPictureSuffix(CString text) {
  static constexpr const char* kSuffixes[] = {".bmp", ".jpg", ".gif", ".pcd", ".pic"};
  text.MakeLower();
  return std::any_of(std::begin(kSuffixes), std::end(kSuffixes),
                     [&](const char* suffix) { return text.Find(suffix) >= 0; });
}

CString PackPointLine(const CString& line) {
  CString rest = line;
  const CString place = TakeField(rest, ' ');
  const CString latitude = TakeField(rest, ' ');
  const CString longitude = TakeField(rest, ' ');
  const CString item = TakeField(rest, ' ');
  const bool has_second_file = rest.Find(' ') >= 0;
  const CString first_file = has_second_file ? TakeField(rest, ' ') : rest;
  CString packed = place + '#' + item + '@' + first_file + '$' + latitude + '$' + longitude;
  if (has_second_file) packed += '$' + rest;
  return packed;
}

std::vector<CString> PackPointLines(const std::vector<CString>& lines) {
  std::vector<CString> points(lines.size());
  std::transform(lines.begin(), lines.end(), points.begin(), PackPointLine);
  return points;
}

DataLine UnpackPoint(const CString& packed) {
  DataLine data;
  CString rest = packed;
  CString head = TakeField(rest, '@');
  CString first_file = TakeField(rest, '$');
  data.latitude = TakeField(rest, '$');
  const bool has_second_file = rest.Find('$') >= 0;
  data.longitude = has_second_file ? TakeField(rest, '$') : rest;
  CString second_file = has_second_file ? rest : CString();
  const bool picture_first = HoldsPictureSuffix(first_file);
  data.picture = picture_first ? first_file : second_file;
  data.text_file = picture_first ? second_file : first_file;
  data.place = TakeField(head, '#');
  data.item = head;
  return data;
}

CString PointLabel(const CString& packed) { return TextBefore(packed, '@'); }

}  // namespace orreryui
