// The string that an operation hands back to the host.
#ifndef ORRERYUI_OPERATIONS_RESULT_STRING_H_
#define ORRERYUI_OPERATIONS_RESULT_STRING_H_

#include <orreryui/cstring.h>

namespace orreryui {

// Puts a result together, field by field from left to right. Nothing is escaped.
class ResultString {
 public:
  // A number, in decimal and with the bar behind it.
  ResultString& Number(int value) {
    CString field;
    field.Format("%d|", value);
    text_ += field;
    return *this;
  }

  // A text that another field follows.
  ResultString& Text(const char* text) {
    text_ += text;
    text_ += '|';
    return *this;
  }

  // The text that ends the result.
  CString End(const char* text) {
    text_ += text;
    return text_;
  }

 private:
  CString text_;
};

}  // namespace orreryui

#endif  // ORRERYUI_OPERATIONS_RESULT_STRING_H_
