// The list of palettes: the text file "PLTTFILE.DAT" in the folder of the palette files. Each line
// is a palette's name, $ and its file's name; a palette's number is that of its line, from 0. An
// empty line ends the list. A line without $ has no name.
//
// A palette that the user made is named by its place: number i lies in "Orbis<i + 1>.plt". Lists
// that were edited by hand may have other files.
//
// Folders end in their separator. Whatever changes the disk returns true once all of the change is
// there; false means that the folder is as it was. A change that was cut off half-way is finished
// or taken back by the next reader.
#ifndef ORRERYUI_APPEARANCE_PALETTE_LIST_H_
#define ORRERYUI_APPEARANCE_PALETTE_LIST_H_

#include <orreryui/cstring.h>

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace orreryui {

// As many palettes as the editor knows. Those behind them stay in the list, whatever is done to it.
inline constexpr std::size_t kMostPalettes = 20;
inline constexpr std::size_t kAllPalettes = std::numeric_limits<std::size_t>::max();

struct PaletteEntry {
  CString name;
  CString file;  // without folder; empty in a damaged line

  bool operator==(const PaletteEntry&) const = default;
};

struct PaletteList {
  std::vector<PaletteEntry> entries;
  std::string rest;      // what stands in the file behind the entries, byte for byte
  bool complete = true;  // false: it couldn't be opened or reading broke off
};

PaletteEntry PaletteEntryOf(const CString& line);

// Whether a reader of the list gets the entry whole.
bool FitsInALine(const PaletteEntry& entry);

// The first `most` entries. A list that is missing has none; a line of more than 98 bytes gives
// several.
PaletteList ReadPaletteList(const CString& folder, std::size_t most = kMostPalettes);

// One line of the list, whatever stands in front of it. Where the list has no line of that number,
// the empty text, or the last line if that has no line end.
CString ReadPaletteLine(const CString& folder, int number);

// The name for the file of a palette that joins the list: "Orbis<n>.plt", where n is the number of
// entries with a file of that kind, plus 1; if that file exists, the next n that is free.
CString NewPaletteFile(const CString& folder, const PaletteList& list);

// Adds an entry, whose file gets the content `text`, behind the entries of the list, which must
// exist. The file must not.
bool AddPaletteEntry(const CString& folder, const PaletteEntry& entry, const std::string& text);

// Removes from the list as it is by now the entry that `shown` has at `number`, and its palette
// file; `shown` is then what is left. The files behind the entry are renamed, so that each palette
// that was named by its place still is. Other files keep their names: one that another line names
// as well, or that lies outside the folder, is neither removed nor renamed, and no file takes a
// name that is in use. A file may be missing. False also if the entry isn't in the list any more.
bool RemovePaletteEntry(const CString& folder, PaletteList& shown, std::size_t number);

}  // namespace orreryui

#endif  // ORRERYUI_APPEARANCE_PALETTE_LIST_H_
