#include "platform/dialogs/text_part.h"

#include <algorithm>
#include <cstring>

namespace orreryui {
namespace {

int CountLines(std::string_view text) {
  return static_cast<int>(std::count(text.begin(), text.end(), '\n')) + 1;
}

// Where a line begins.
struct LineStart {
  std::size_t offset = 0;
  int line = 0;
};

LineStart Next(std::string_view text, LineStart from) {
  return {text.find('\n', from.offset) + 1, from.line + 1};
}

LineStart Previous(std::string_view text, LineStart from) {
  const void* const line_feed = memrchr(text.data(), '\n', from.offset - 1);
  const char* const begin = line_feed ? static_cast<const char*>(line_feed) + 1 : text.data();
  return {static_cast<std::size_t>(begin - text.data()), from.line - 1};
}

// Goes there from `known` or from the start of the text, whichever is nearer. The line must exist.
std::size_t OffsetOf(std::string_view text, LineStart known, int line) {
  if (line < known.line / 2) known = {};
  while (known.line < line) known = Next(text, known);
  while (known.line > line) known = Previous(text, known);
  return known.offset;
}

// The end of the line before the one that begins at `offset`.
std::size_t EndBefore(std::string_view text, std::size_t offset) {
  const std::size_t line_feed = offset - 1;
  return line_feed > 0 && text[line_feed - 1] == '\r' ? line_feed - 1 : line_feed;
}

}  // namespace

ShownPart FirstPart(std::string_view text) {
  const int all = CountLines(text);
  if (text.size() > kLongestWholeText) return PartAround(text, {0, 0, {0, 0, all}}, 0);
  return {0, text.size(), {0, all, all}};
}

ShownPart PartAround(std::string_view text, const ShownPart& shown, int line) {
  const int all = shown.lines.all;
  const int lines = std::min(kLinesOfPart, all);
  const int first = std::clamp(std::max(line, 0) - lines / 2, 0, all - lines);
  const std::size_t begin = OffsetOf(text, {shown.begin, shown.lines.first}, first);
  const bool is_last = first + lines == all;
  const std::size_t end =
      is_last ? text.size() : EndBefore(text, OffsetOf(text, {begin, first}, first + lines));
  return {begin, end, {first, lines, all}};
}

ShownPart EditedPart(const ShownPart& shown, std::string_view old_bytes,
                     std::string_view new_bytes) {
  const int lines = CountLines(new_bytes);
  const int added = lines - CountLines(old_bytes);
  return {shown.begin,
          shown.begin + new_bytes.size(),
          {shown.lines.first, lines, shown.lines.all + added}};
}

}  // namespace orreryui
