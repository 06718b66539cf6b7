#include "platform/dialogs/text_search.h"

#include <orreryui/cstring.h>

namespace orreryui {
namespace {

std::size_t LengthAt(std::string_view text, std::size_t place) {
  const char next = place + 1 < text.size() ? text[place + 1] : '\0';
  return static_cast<std::size_t>(CharacterLength(text[place], next));
}

char Folded(char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte; }

// Whether the character of `text` at `place` is that of `wanted` at `at`, which is `length` long.
bool IsSame(std::string_view text, std::size_t place, std::string_view wanted, std::size_t at,
            std::size_t length) {
  if (length != LengthAt(text, place)) return false;
  if (length == 1) return Folded(text[place]) == Folded(wanted[at]);
  return text.compare(place, length, wanted, at, length) == 0;
}

bool Stands(std::string_view text, std::size_t place, std::string_view wanted) {
  if (wanted.size() > text.size() - place) return false;
  for (std::size_t at = 0; at < wanted.size();) {
    const std::size_t length = LengthAt(wanted, at);
    if (!IsSame(text, place + at, wanted, at, length)) return false;
    at += length;
  }
  return true;
}

std::optional<std::size_t> FirstFrom(std::string_view text, std::string_view wanted,
                                     std::size_t from) {
  for (std::size_t place = from; place < text.size(); place += LengthAt(text, place)) {
    if (Stands(text, place, wanted)) return place;
  }
  return std::nullopt;
}

// Characters are told apart from the beginning only.
std::optional<std::size_t> LastBefore(std::string_view text, std::string_view wanted,
                                      std::size_t end) {
  std::optional<std::size_t> last;
  for (std::size_t place = 0; place < end; place += LengthAt(text, place)) {
    if (Stands(text, place, wanted)) last = place;
  }
  return last;
}

}  // namespace

std::optional<std::size_t> FindNext(std::string_view text, std::string_view wanted,
                                    std::size_t from) {
  if (wanted.empty()) return std::nullopt;
  const auto next = FirstFrom(text, wanted, from);
  return next ? next : FirstFrom(text, wanted, 0);
}

std::optional<std::size_t> FindPrevious(std::string_view text, std::string_view wanted,
                                        std::size_t from) {
  if (wanted.empty()) return std::nullopt;
  const auto previous = LastBefore(text, wanted, from);
  return previous ? previous : LastBefore(text, wanted, text.size());
}

int CountCharacters(std::string_view text) {
  int count = 0;
  for (std::size_t place = 0; place < text.size(); place += LengthAt(text, place)) ++count;
  return count;
}

std::size_t OffsetOfCharacter(std::string_view text, int number) {
  std::size_t place = 0;
  for (; number > 0 && place < text.size(); --number) place += LengthAt(text, place);
  return place;
}

}  // namespace orreryui
