// Searching in a long text of code page 932, character by character. ASCII letters are found in
// either case.
#ifndef ORRERYUI_PLATFORM_DIALOGS_TEXT_SEARCH_H_
#define ORRERYUI_PLATFORM_DIALOGS_TEXT_SEARCH_H_

#include <cstddef>
#include <optional>
#include <string_view>

namespace orreryui {

// The byte at which `wanted` begins: the first place from byte `from` on, or the last one before
// it; else the search goes on at the other end of the text. Nothing if there is no place at all, or
// `wanted` is empty. `from` is where a character begins.
std::optional<std::size_t> FindNext(std::string_view text, std::string_view wanted,
                                    std::size_t from);
std::optional<std::size_t> FindPrevious(std::string_view text, std::string_view wanted,
                                        std::size_t from);

int CountCharacters(std::string_view text);

// Where the character number `number` begins, counted from 0; the end of the text if it is shorter.
std::size_t OffsetOfCharacter(std::string_view text, int number);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_TEXT_SEARCH_H_
