// The library that speaks to X servers. Qt brings it along where it is needed, so the plug-in looks
// its functions up when it calls them and isn't linked to it.
#ifndef ORRERYUI_FRONT_ENDS_QT_XCB_LIBRARY_H_
#define ORRERYUI_FRONT_ENDS_QT_XCB_LIBRARY_H_

#include <dlfcn.h>

namespace orreryui {

// The function of this name and type, or null.
template <class Function>
Function* XcbFunction(const char* name) {
  void* const library = dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
  return library != nullptr ? reinterpret_cast<Function*>(dlsym(library, name)) : nullptr;
}

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_XCB_LIBRARY_H_
