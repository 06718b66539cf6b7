#include "platform/dialogs/front_end_loader.h"

#include <dlfcn.h>

#include <cinttypes>
#include <cstdio>
#include <fstream>
#include <utility>

#include "platform/system/library.h"

namespace orreryui {
namespace {

ScopedFrontEnd* replacement = nullptr;
FrontEndFunction* plug_in = nullptr;  // once it is loaded

// The file that this code was loaded from, as the loader spelled it.
std::string OwnFile() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&LoadFrontEnd), &info) == 0) return "";
  return info.dli_fname ? info.dli_fname : "";
}

// The same file with its full path and without links, which still holds when the working directory
// has changed since.
std::string OwnMappedFile() {
  const auto own = reinterpret_cast<std::uintptr_t>(&LoadFrontEnd);
  std::ifstream maps("/proc/self/maps");
  std::string line;
  while (std::getline(maps, line)) {
    std::uintptr_t begin = 0, end = 0;
    if (std::sscanf(line.c_str(), "%" SCNxPTR "-%" SCNxPTR, &begin, &end) != 2) continue;
    if (own < begin || own >= end) continue;
    const std::size_t path = line.find('/');
    return path == std::string::npos ? "" : line.substr(path);
  }
  return "";
}

FrontEndFunction* LoadPlugIn(const std::string& path) {
  return reinterpret_cast<FrontEndFunction*>(LoadFunction(path, kFrontEndSymbol));
}

// A path that isn't a full one would lead to whatever lies in the working directory.
FrontEndFunction* LoadPlugInBeside(const std::string& file) {
  if (file.empty() || file.front() != '/') return nullptr;
  const std::string folder = file.substr(0, file.rfind('/') + 1) + "orreryui/";
  return LoadPlugIn(folder + LibraryFileName("orreryui-qt"));
}

}  // namespace

FrontEnd* LoadFrontEnd(const std::string& path) {
  FrontEndFunction* const function = LoadPlugIn(path);
  return function ? function(kFrontEndVersion) : nullptr;
}

FrontEnd* CurrentFrontEnd() {
  if (replacement) return replacement->front_end_;
  if (!plug_in) plug_in = LoadPlugInBeside(OwnFile());
  if (!plug_in) plug_in = LoadPlugInBeside(OwnMappedFile());
  return plug_in ? plug_in(kFrontEndVersion) : nullptr;
}

ScopedFrontEnd::ScopedFrontEnd(FrontEnd* front_end)
    : front_end_(front_end), outer_(std::exchange(replacement, this)) {}

ScopedFrontEnd::~ScopedFrontEnd() { replacement = outer_; }

}  // namespace orreryui
