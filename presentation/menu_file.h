// The files of the host's menus: "SOURCE\MENUFILE.DAT" with the file menus, "Guidemap\Guidemap.DAT"
// with the picture map. A menu has slots for entries, and an entry a title and a file; a separator
// is a title without a file, and a slot with neither is free. Paths, titles and files are in code
// page 932; the folder ends in its separator.
//
// In the file of the menus a section is a head, any line that holds "[M", and the item lines behind
// it, up to the next head and 35 at the most: two digits for the slot, = and the body.
//
//   07=title@file   an entry
//   07=             a free slot
//   07=text         a separator
//
// The file of the picture map has a line for each entry, its title, a blank and its file; a line
// without a blank is a separator. In both files empty lines and those that begin with ; hold no
// entry, and a line of more than 199 bytes is read as several.
//
// The library makes neither file. What a rewrite has no entry for is there afterwards byte for
// byte; only the picture map loses its empty lines, and its comments between entries, up to the
// 35th entry.
#ifndef ORRERYUI_PRESENTATION_MENU_FILE_H_
#define ORRERYUI_PRESENTATION_MENU_FILE_H_

#include <orreryui/cstring.h>

#include <array>
#include <cstddef>
#include <optional>

namespace orreryui {

inline constexpr std::size_t kMenuSlots = 35;
inline constexpr std::size_t kMenus = 8;  // the text menus and the picture menus

using MenuTexts = std::array<CString, kMenuSlots>;  // one text a slot

CString MenuFilePath(const CString& folder);
CString GuidemapPath(const CString& folder);

// The slots of a section; sections count from 0. All are free where the file or the section is
// missing, and one without a line of its own is. A separator has the same title each time, whatever
// the file says. False: the file couldn't be opened or read to its end, so that what is free isn't
// known and nothing may be rewritten.
bool ReadMenuSection(const CString& folder, int section, MenuTexts& titles, MenuTexts& files);

// Puts the slots into the section as the file holds it now. A slot without a line gets one behind
// the others if it isn't free; of two lines of one slot the first counts, and an item line that has
// no slot loses its body. Of a title that begins with -- the file isn't written. False: the file is
// as it was, since it or the section's head is missing, there is no room for the lines, or the disk
// refuses.
bool WriteMenuSection(const CString& folder, int section, const MenuTexts& titles,
                      const MenuTexts& files);

// The same for the picture map, whose entries fill the slots in file order. The entries that come
// behind those that have a slot stay. A slot without a title isn't written.
bool ReadGuidemap(const CString& folder, MenuTexts& titles, MenuTexts& files);
bool WriteGuidemap(const CString& folder, const MenuTexts& titles, const MenuTexts& files);

// Whether a reader gets the entry's line whole.
bool FitsInMenuSection(const CString& title, const CString& file);
bool FitsInGuidemap(const CString& title, const CString& file);

// How many entries with a file the menus have, by sections: each of the first seven that another
// one follows, and in the last place the last one of the file, 0 if there is none. This reader has
// lines of 149 bytes, and knows no end of a section but the next head.
std::array<std::optional<int>, kMenus> CountMenuFiles(const CString& folder);

}  // namespace orreryui

#endif  // ORRERYUI_PRESENTATION_MENU_FILE_H_
