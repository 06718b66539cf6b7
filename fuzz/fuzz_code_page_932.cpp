// Any bytes decode, what was encoded comes back unchanged, and an edit box that nobody edited keeps
// its bytes.
#include <string>

#include "fuzz/input.h"
#include "platform/strings/code_page_932.h"

namespace {

using orreryui::Encoded;

void CheckBytes(std::string_view bytes) {
  const std::string text = orreryui::ToUtf8(bytes);
  Require(orreryui::MergeEdit(bytes, text).bytes == bytes);
  const Encoded encoded = orreryui::FromUtf8(text);
  Require(orreryui::ToUtf8(encoded.bytes).size() + encoded.refused.size() == text.size());
}

// Encodes text that may be no UTF-8, and what came of it once more.
void CheckText(std::string_view text) {
  const Encoded first = orreryui::FromUtf8(text);
  const Encoded second = orreryui::FromUtf8(orreryui::ToUtf8(first.bytes));
  Require(second.bytes == first.bytes && second.refused.empty());
}

// Line feeds in the place of all line ends.
std::string WithLineFeeds(const std::string& bytes) {
  std::string result;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') continue;
    result += bytes[i] == '\r' ? '\n' : bytes[i];
  }
  return result;
}

// CR LF in the place of all line ends, as the boxes of a front end write them.
std::string AsFromABox(const std::string& text) {
  std::string result;
  for (const char byte : WithLineFeeds(text))
    result += byte == '\n' ? "\r\n" : std::string(1, byte);
  return result;
}

// What an edit leaves in the box is what the user sees there, but for the refused characters and
// the way in which line ends are written.
void CheckEdit(std::string_view old_bytes, std::string_view typed) {
  const std::string new_text = AsFromABox(std::string(typed));
  const Encoded merged = orreryui::MergeEdit(old_bytes, new_text);
  const std::string shown = AsFromABox(orreryui::ToUtf8(merged.bytes));
  Require(orreryui::FromUtf8(shown).bytes == orreryui::FromUtf8(new_text).bytes);
}

}  // namespace

void Check(std::string_view input) {
  CheckBytes(input);
  CheckText(input);
  const std::size_t half = input.size() / 2;
  CheckEdit(input.substr(0, half), input.substr(half));
  CheckEdit(input.substr(0, half),
            orreryui::ToUtf8(input.substr(0, half)).append(input.substr(half)));
}
