#include "retrieval/result_file.h"

#include <algorithm>
#include <charconv>
#include <ctime>
#include <iterator>

#include "platform/strings/japanese_literal.h"
#include "platform/system/clock.h"
#include "platform/system/file_system.h"
#include "platform/system/path.h"

namespace orreryui {
namespace {

constexpr const char* kExtensions[] = {".dat", ".ymd", ".csv"};  // by format

constexpr const char* kWeekdays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

// In thousands of bytes, with two decimals behind a point in any locale.
CString SizeText(std::uint64_t size) {
  char text[32];
  const auto end = std::to_chars(std::begin(text), std::end(text),
                                 static_cast<double>(size) * 0.001, std::chars_format::fixed, 2);
  return CString(text, static_cast<int>(end.ptr - text));
}

// In English, in any locale.
CString TimeText(const std::tm& time) {
  CString text;
  text.Format("%s %s %2d %02d:%02d:%02d %ld\n", kWeekdays[time.tm_wday], kMonths[time.tm_mon],
              time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec, 1900L + time.tm_year);
  return text;
}

}  // namespace

int FormatOfPath(const CString& path) {
  if (path.Find(kExtensions[kCsvFormat]) >= 0) return kCsvFormat;
  return path.Find(kExtensions[kYmdFormat]) >= 0 ? kYmdFormat : kDatFormat;
}

CString WithExtension(const CString& path, int format) {
  const bool holds_one = std::ranges::any_of(
      kExtensions, [&](const char* extension) { return path.Find(extension) >= 0; });
  if (path.IsEmpty() || holds_one || format < kDatFormat || format > kCsvFormat) return path;
  return path + kExtensions[format];
}

std::optional<CString> FactsOfFile(const CString& path) {
  const auto file = CurrentFileSystem().Open(NativePath(path), OpenMode::kRead);
  if (!file) return std::nullopt;
  const auto size = file->Size();
  const auto modified = file->Modified();
  if (!size || !modified) return CString();
  return "ファイルのサイズ="_sj + SizeText(*size) + "Kb" +
         TimeText(CurrentClock().LocalTime(*modified));
}

}  // namespace orreryui
