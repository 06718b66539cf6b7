// The preview of a text file that is tied to an album.
#ifndef ORRERYUI_ALBUMS_TEXT_PREVIEW_H_
#define ORRERYUI_ALBUMS_TEXT_PREVIEW_H_

#include <orreryui/cstring.h>

namespace orreryui {

// Shows the head of the file above the dialog that is open, and returns when the user has closed
// it. An empty path shows nothing.
void PreviewText(const CString& path);

}  // namespace orreryui

#endif  // ORRERYUI_ALBUMS_TEXT_PREVIEW_H_
