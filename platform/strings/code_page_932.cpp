#include "platform/strings/code_page_932.h"

#include <algorithm>
#include <string>
#include <vector>

namespace orreryui {
namespace {

using namespace detail;

struct Decoded {
  std::u32string characters;
  std::vector<std::size_t> starts;  // of each character in the bytes, and the end of the last one
};

Decoded ReadCodePage(std::string_view bytes) {
  const Tables& tables = GetTables();
  Decoded decoded;
  std::string_view rest = bytes;
  while (!rest.empty()) {
    decoded.starts.push_back(bytes.size() - rest.size());
    decoded.characters += TakeCharacter(tables, rest);
  }
  decoded.starts.push_back(bytes.size());
  return decoded;
}

// A text whose line ends, however they are written, count as one character each.
struct Folded {
  std::u32string characters;
  std::vector<std::size_t> places;  // where each of them begins, and the end of the text
};

Folded FoldLineEnds(std::u32string_view text) {
  Folded folded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool ends_line = text[i] == U'\r' || text[i] == U'\n';
    folded.characters += ends_line ? U'\n' : text[i];
    folded.places.push_back(i);
    if (text[i] == U'\r' && i + 1 < text.size() && text[i + 1] == U'\n') ++i;
  }
  folded.places.push_back(text.size());
  return folded;
}

// The same with CR LF for each line end.
std::u32string UnfoldLineEnds(std::u32string_view folded) {
  std::u32string text;
  for (const char32_t character : folded) {
    if (character == U'\n') text += U'\r';
    text += character;
  }
  return text;
}

std::size_t CommonStart(std::u32string_view a, std::u32string_view b) {
  const auto differs = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
  return static_cast<std::size_t>(differs - a.begin());
}

std::size_t CommonEnd(std::u32string_view a, std::u32string_view b) {
  const auto differs = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend()).first;
  return static_cast<std::size_t>(differs - a.rbegin());
}

}  // namespace

Encoded MergeEdit(std::string_view old_bytes, std::string_view new_text) {
  const Decoded decoded = ReadCodePage(old_bytes);
  const std::u32string text = ReadComposed(new_text);
  const Folded old_line = FoldLineEnds(decoded.characters);
  const Folded new_line = FoldLineEnds(text);
  const std::size_t old_size = old_line.characters.size();
  const std::size_t new_size = new_line.characters.size();
  const std::size_t head = CommonStart(old_line.characters, new_line.characters);
  const std::size_t tail = CommonEnd(std::u32string_view(old_line.characters).substr(head),
                                     std::u32string_view(new_line.characters).substr(head));

  const auto old_start = [&](std::size_t i) { return decoded.starts[old_line.places[i]]; };
  const std::size_t head_end = old_start(head);
  Encoded result{std::string(old_bytes.substr(0, head_end)), ""};
  Encoded rest = Encode(UnfoldLineEnds(
      std::u32string_view(new_line.characters).substr(head, new_size - tail - head)));
  rest.bytes += old_bytes.substr(old_start(old_size - tail));
  const bool ends_in_lone_lead =
      head > 0 && head_end - old_start(head - 1) == 1 && IsLeadByte(result.bytes.back());
  if (ends_in_lone_lead && !rest.bytes.empty() && IsTrailByte(rest.bytes[0])) {
    result.bytes.pop_back();
    AppendUtf8(result.refused, kReplacementCharacter);
  }
  // Two line ends that meet now must not become one.
  if (result.bytes.ends_with('\r') && rest.bytes.starts_with('\n')) result.bytes += '\n';
  result.bytes += rest.bytes;
  result.refused += rest.refused;
  return result;
}

}  // namespace orreryui
