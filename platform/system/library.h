// Libraries that are found and loaded while the program runs.
#ifndef ORRERYUI_PLATFORM_SYSTEM_LIBRARY_H_
#define ORRERYUI_PLATFORM_SYSTEM_LIBRARY_H_

#include <string>

namespace orreryui {

// A function of such a library, to be cast to what it is.
using LoadedFunction = void();

// The name that the file of a library bears on this system: "libmap.so" for "map".
std::string LibraryFileName(const std::string& library);

// Loads a library and finds the function of this undecorated name in it. `file` is a full path, or
// a name alone, which the system's loader looks for where it looks for libraries. Null if it can't
// be loaded or has no such function. A library that was loaded stays until the process ends.
LoadedFunction* LoadFunction(const std::string& file, const char* function);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_SYSTEM_LIBRARY_H_
