// The list of the host's data files: the text file "BINDER.DAT", one name a line. Empty lines and
// lines that begin with ; are skipped, and gone after a rewrite. Paths and names are in code page
// 932.
#ifndef ORRERYUI_ALBUMS_DATA_FILE_LIST_H_
#define ORRERYUI_ALBUMS_DATA_FILE_LIST_H_

#include <orreryui/cstring.h>

#include <string>
#include <vector>

namespace orreryui {

// As many names as are read. Those behind them stay in the file, whatever is done to it.
inline constexpr std::size_t kMostDataFileNames = 99;

struct DataFileList {
  std::vector<CString> names;  // in file order
  std::string rest;            // what stands in the file behind kMostDataFileNames names
  bool complete = true;        // false: reading broke off, so that a rewrite would lose names
};

// A file that can't be opened has no names. A line of more than 98 bytes gives several names.
DataFileList ReadDataFileList(const CString& path);

// Adds a name at the end of the file, and makes the file if there is none. False: the file is as
// it was.
bool AppendDataFileName(const CString& path, const CString& name);

// Writes the list in place of the file's content; the file must exist. False: the file is as it
// was.
bool RewriteDataFileList(const CString& path, const DataFileList& list);

}  // namespace orreryui

#endif  // ORRERYUI_ALBUMS_DATA_FILE_LIST_H_
