// A library in the place of the one that chooses pictures.
#include <orreryui/cstring.h>

#include <stdexcept>

#if defined(__clang__)
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"  // the name is undecorated, not C
#endif

extern "C" __attribute__((visibility("default"))) orreryui::CString ORRERYUI_FUNCTION() {
  if (ORRERYUI_THROWS) throw std::runtime_error("no picture");
  return "C:\\A.BMP";
}
