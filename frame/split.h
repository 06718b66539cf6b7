// How a record falls apart into its fields at a separator.
#ifndef ORRERYUI_FRAME_SPLIT_H_
#define ORRERYUI_FRAME_SPLIT_H_

#include <orreryui/cstring.h>

namespace orreryui {

// Takes off `rest` what stands before its first `separator`, and the separator with it, and returns
// it. Without a separator the field is empty and `rest` stays whole. The second byte of a character
// doesn't separate.
inline CString TakeField(CString& rest, char separator) {
  const int position = rest.Find(separator);
  CString field = rest.Left(position);
  rest = rest.Mid(position + 1);
  return field;
}

// What stands before the first `separator`; all of a text without one.
inline CString TextBefore(const CString& text, char separator) {
  const int position = text.Find(separator);
  return position < 0 ? text : text.Left(position);
}

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_SPLIT_H_
