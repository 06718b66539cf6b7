// The file that a retrieval's results go to, which the host writes: its format, and what is known
// of one that exists. Paths are in lower case.
#ifndef ORRERYUI_RETRIEVAL_RESULT_FILE_H_
#define ORRERYUI_RETRIEVAL_RESULT_FILE_H_

#include <orreryui/cstring.h>

#include <optional>

namespace orreryui {

enum ResultFormat { kDatFormat, kYmdFormat, kCsvFormat };

// The format that goes with the extension that the path holds somewhere; without one, dat.
int FormatOfPath(const CString& path);

// The path with the format's extension behind it, if it isn't empty and holds none of the three. A
// number that is no format adds nothing.
CString WithExtension(const CString& path, int format);

// Size and date of the file, as one line for people with a line feed at its end. The empty text if
// the file is there but they can't be told; nothing if it can't be opened for reading.
std::optional<CString> FactsOfFile(const CString& path);

}  // namespace orreryui

#endif  // ORRERYUI_RETRIEVAL_RESULT_FILE_H_
