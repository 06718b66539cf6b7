#include "platform/system/library.h"

#include <dlfcn.h>

namespace orreryui {

std::string LibraryFileName(const std::string& library) { return "lib" + library + ".so"; }

LoadedFunction* LoadFunction(const std::string& file, const char* function) {
  void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  return library ? reinterpret_cast<LoadedFunction*>(dlsym(library, function)) : nullptr;
}

}  // namespace orreryui
