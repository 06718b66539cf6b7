// The entries of a list that a dialog shows, and that other programs may change meanwhile.
#ifndef ORRERYUI_FRAME_ENTRIES_H_
#define ORRERYUI_FRAME_ENTRIES_H_

#include <orreryui/cstring.h>

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace orreryui {

// What a text that becomes an entry is taken for: all up to its first line break.
inline CString FirstLine(const CString& text) {
  const auto length = std::string_view(text).find_first_of("\r\n");
  return length == std::string_view::npos ? text : text.Left(static_cast<int>(length));
}

// Where a list that was read anew has the entry that `shown` has at `index`: of several that are
// equal the one with as many of them in front. The end of the list if it is gone.
template <typename Entry>
auto FindAgain(const std::vector<Entry>& shown, std::size_t index, std::vector<Entry>& anew) {
  const Entry& entry = shown[index];
  const auto begin = shown.begin();
  auto in_front = std::count(begin, begin + static_cast<std::ptrdiff_t>(index), entry);
  return std::find_if(anew.begin(), anew.end(),
                      [&](const Entry& other) { return other == entry && in_front-- == 0; });
}

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_ENTRIES_H_
