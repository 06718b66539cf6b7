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
  bool complete = true;        // false: it couldn't be opened or reading broke off
};

// A file that is missing has no names. A line of more than 98 bytes gives several names.
DataFileList ReadDataFileList(const CString& path);

// Whether a reader of the list gets the name back.
bool IsDataFileName(const CString& name);

// Adds a name at the end of the file, and makes the file if there is none. False: the file is as
// it was.
bool AppendDataFileName(const CString& path, const CString& name);

// Takes the name that `shown` has at `index` off the list as the file holds it now. False: the file
// is as it was, since the name isn't there any more, or the disk refused.
bool RemoveDataFileName(const CString& path, const DataFileList& shown, std::size_t index);

}  // namespace orreryui

#endif  // ORRERYUI_ALBUMS_DATA_FILE_LIST_H_
