// A call of an operation as C makes it: texts in UTF-8, and what became of it as a status.
#ifndef ORRERYUI_C_INTERFACE_CALL_IN_UTF8_H_
#define ORRERYUI_C_INTERFACE_CALL_IN_UTF8_H_

#include <orreryui/orreryui_c.h>
#include <orreryui/utf8.h>

#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <tuple>

namespace orreryui {

// The argument at this place, counted from 1, isn't UTF-8 that code page 932 has.
struct UnfitArgument {
  int place;
};

// Takes the arguments of a call one after the other.
class ArgumentReader {
 public:
  int Read(int value) {
    ++place_;
    return value;
  }

  CString Read(const char* text) {
    ++place_;
    const Encoded encoded = FromUtf8(text ? text : "");
    if (!encoded.refused.empty()) throw UnfitArgument{place_};
    return encoded.bytes.c_str();
  }

 private:
  int place_ = 0;
};

template <class Result, class... Parameters, class... Arguments>
Result CallInUtf8(Result (*operation)(Parameters...), Arguments... arguments) {
  ArgumentReader reader;
  // Braces, so that the arguments are read from left to right.
  return std::apply(operation, std::tuple<Parameters...>{reader.Read(arguments)...});
}

// The status that `call` returns, or that of what it throws.
template <class Call>
int StatusOf(Call call) noexcept {
  try {
    return call();
  } catch (const UnfitArgument& argument) {
    return -argument.place;
  } catch (...) {
    return ORRERYUI_OUT_OF_MEMORY;  // nothing else is thrown
  }
}

inline char* NewResult(const CString& bytes) {
  char* const result = strdup(ToUtf8(bytes.operator const char*()).c_str());
  if (!result) throw std::bad_alloc();
  return result;
}

// An operation that returns a text, and `given_up` where the user gave up.
template <class... Parameters, class... Arguments>
int AskForText(char** result, const char* given_up, CString (*operation)(Parameters...),
               Arguments... arguments) {
  if (result) *result = nullptr;
  return StatusOf([&] {
    const CString bytes = CallInUtf8(operation, arguments...);
    if (bytes == given_up) return ORRERYUI_GIVEN_UP;
    if (result) *result = NewResult(bytes);
    return ORRERYUI_OK;
  });
}

// An operation that returns 1 for yes.
template <class... Parameters, class... Arguments>
int AskForConsent(int (*operation)(Parameters...), Arguments... arguments) {
  return StatusOf(
      [&] { return CallInUtf8(operation, arguments...) == 1 ? ORRERYUI_OK : ORRERYUI_GIVEN_UP; });
}

// An operation that returns nothing.
template <class... Parameters, class... Arguments>
int Show(void (*operation)(Parameters...), Arguments... arguments) {
  return StatusOf([&] {
    CallInUtf8(operation, arguments...);
    return ORRERYUI_OK;
  });
}

}  // namespace orreryui

#endif  // ORRERYUI_C_INTERFACE_CALL_IN_UTF8_H_
