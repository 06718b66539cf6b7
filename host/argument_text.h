// Arguments and results of the operations as texts in UTF-8.
#ifndef ORRERYUI_HOST_ARGUMENT_TEXT_H_
#define ORRERYUI_HOST_ARGUMENT_TEXT_H_

#include <orreryui/cstring.h>

#include <concepts>
#include <string>
#include <tuple>
#include <type_traits>

namespace orreryui::host {

// An argument as an operation takes it. A text that can't be one leaves its reason in `error`,
// unless that holds one already, and gives an empty value. `place` counts from 1.
int ReadInteger(const std::string& text, std::size_t place, std::string& error);
CString ReadText(const std::string& text, std::size_t place, std::string& error);

// A result in UTF-8.
std::string TextOf(int result);
std::string TextOf(const CString& result);

template <typename Parameter>
Parameter ReadArgument(const std::string& text, std::size_t place, std::string& error) {
  if constexpr (std::is_same_v<Parameter, int>) {
    return ReadInteger(text, place, error);
  } else {
    return ReadText(text, place, error);
  }
}

// The result of `call`, or the empty text if it gives none.
template <std::invocable Call>
std::string TextOf(Call call) {
  if constexpr (std::is_void_v<decltype(call())>) {
    call();
    return "";
  } else {
    return TextOf(call());
  }
}

template <typename Parameter>
std::string TypeName() {
  return std::is_same_v<Parameter, int> ? "integer" : "text";
}

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_ARGUMENT_TEXT_H_
