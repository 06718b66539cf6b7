#!/usr/bin/env python3
"""Prints include/orreryui/detail/code_page_932_table.h.

The assignments come from Python's own cp932 codec, which follows the Microsoft table that the
Unicode Consortium publishes. The way back is decided here: Python prefers NEC's selection to IBM's
extension, and the library does it the other way round.
"""

HEAD = """\
// The double-byte characters of code page 932, without the user-defined area.
//
// Public source: the Microsoft code page 932 table at the Unicode Consortium's vendor mappings
// (VENDORS/MICSFT/WINDOWS/CP932.TXT). Written by tools/make_code_page_932.py; change that instead.
#ifndef ORRERYUI_DETAIL_CODE_PAGE_932_TABLE_H_
#define ORRERYUI_DETAIL_CODE_PAGE_932_TABLE_H_

#include <string_view>

namespace orreryui::detail {
"""

PREFERRED_COMMENT = """
// Pairs of a character and its code, ordered by character: each character that has a code, once,
// with the code that it is written as.
"""

DECODE_ONLY_COMMENT = """
// Pairs of a character and a further code for it, ordered by code. These codes are read and never
// written.
"""

TAIL = """
}  // namespace orreryui::detail

#endif  // ORRERYUI_DETAIL_CODE_PAGE_932_TABLE_H_"""

PAIRS_A_LINE = 11


def assignments():
    """Yields the code and the character of each double-byte code outside the user-defined area."""
    for lead in [*range(0x81, 0xA0), *range(0xE0, 0xFD)]:
        for trail in [*range(0x40, 0x7F), *range(0x80, 0xFD)]:
            try:
                character = bytes([lead, trail]).decode("cp932")
            except UnicodeDecodeError:
                continue
            if not 0xF0 <= lead <= 0xF9:
                yield lead << 8 | trail, character


def preference(code):
    """JIS X 0208 first, then row 13 of NEC, IBM's extension, and NEC's selection of it."""
    lead = code >> 8
    if lead == 0x87:
        return 1
    if lead >= 0xFA:
        return 2
    return 3 if lead in (0xED, 0xEE) else 0


def literal(character):
    """Compatibility ideographs are escaped, since text tools like to replace them."""
    return f"\\u{ord(character):04X}" if 0xF900 <= ord(character) <= 0xFAFF else character


def print_pairs(name, comment, pairs):
    print(comment + "// clang-format off")
    print(f"inline constexpr std::u16string_view {name} =")
    for start in range(0, len(pairs), PAIRS_A_LINE):
        line = pairs[start:start + PAIRS_A_LINE]
        text = "".join(f"{literal(character)}\\x{code:04X}" for character, code in line)
        end = ";" if start + PAIRS_A_LINE >= len(pairs) else ""
        print(f'    u"{text}"{end}')
    print("// clang-format on")


def main():
    preferred = {}
    decode_only = []
    for code, character in sorted(assignments(), key=lambda pair: (preference(pair[0]), pair[0])):
        if character in preferred:
            decode_only.append((character, code))
        else:
            preferred[character] = code
    print(HEAD, end="")
    print_pairs("kCodePage932", PREFERRED_COMMENT, sorted(preferred.items()))
    print_pairs("kCodePage932DecodeOnly", DECODE_ONLY_COMMENT,
                sorted(decode_only, key=lambda pair: pair[1]))
    print(TAIL)


if __name__ == "__main__":
    main()
