// Doesn't compile: the code page has no snowman. A test compiles it and looks for the reason.
#include "platform/strings/japanese_literal.h"

const char* Refused() {
  using orreryui::operator""_sj;
  return "雪☃"_sj;
}
