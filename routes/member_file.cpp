#include "routes/member_file.h"

#include <ctime>
#include <string>

#include "frame/entries.h"
#include "frame/split.h"
#include "platform/system/clock.h"
#include "platform/system/path.h"
#include "points/data_line.h"
#include "points/packed_point.h"

namespace orreryui {
namespace {

constexpr std::time_t kMinute = 60;

CString NameAt(std::time_t moment, MapKind kind) {
  const std::tm local = CurrentClock().LocalTime(moment);
  CString name;
  name.Format("G%02d%X%02d%02d.%d%c", local.tm_year % 100, static_cast<unsigned>(local.tm_mon + 1),
              local.tm_mday, local.tm_hour, local.tm_min, kind == MapKind::kRoute ? 'R' : 'A');
  return name;
}

CString MemberLine(CString packed) {
  packed.MakeLower();
  const bool holds_both_kinds = HoldsPictureSuffix(packed) && packed.Find(".txt") >= 0;
  const CString place = TakeField(packed, '#');
  const CString item = TakeField(packed, '@');
  const CString first_file = TakeField(packed, '$');
  const CString latitude = TakeField(packed, '$');
  CString longitude = packed;
  CString files = first_file;
  if (holds_both_kinds && packed.Find('$') >= 0) {
    longitude = TakeField(packed, '$');
    files += ' ' + packed;
  }
  return place + ' ' + latitude + ' ' + longitude + ' ' + item + ' ' + files;
}

}  // namespace

CString MakeMemberName(const CString& folder, MapKind kind) {
  std::time_t moment = CurrentClock().Now();
  while (Exists(folder + NameAt(moment, kind))) moment += kMinute;
  return NameAt(moment, kind);
}

std::vector<CString> MemberLines(const std::vector<CString>& points) {
  std::vector<CString> lines;
  lines.reserve(points.size());
  for (const CString& packed : points) lines.push_back(MemberLine(packed));
  return lines;
}

bool IsMemberLine(const CString& line) {
  return line.GetLength() < static_cast<int>(kDataLineLimit) && FirstLine(line) == line;
}

void WriteMemberFile(FileChanges& changes, const CString& path, const std::vector<CString>& lines) {
  std::string content;
  for (const CString& line : lines) content.append(line).append("\r\n");
  changes.Create(path, content);
}

}  // namespace orreryui
