#include "platform/front_end_loader.h"

#include <dlfcn.h>
#include <limits.h>
#include <stdlib.h>

#include <utility>

namespace orreryui {
namespace {

constexpr char kPlugIn[] = "orreryui/liborreryui-qt.so";

ScopedFrontEnd* replacement = nullptr;

std::string FolderOf(const std::string& file) {
  const std::size_t slash = file.rfind('/');
  return slash == std::string::npos ? "" : file.substr(0, slash + 1);
}

// The file that this code was loaded from, as the loader spelled it.
std::string OwnFile() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&LoadFrontEnd), &info) == 0 || !info.dli_fname)
    return "";
  return info.dli_fname;
}

std::string WithoutLinks(const std::string& file) {
  char resolved[PATH_MAX];
  return realpath(file.c_str(), resolved) ? resolved : "";
}

}  // namespace

FrontEnd* LoadFrontEnd(const std::string& path) {
  void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (!module) return nullptr;
  auto* const function = reinterpret_cast<FrontEndFunction*>(dlsym(module, kFrontEndSymbol));
  return function ? function(kFrontEndVersion) : nullptr;
}

FrontEnd* CurrentFrontEnd() {
  if (replacement) return replacement->front_end_;
  const std::string own_file = OwnFile();
  if (own_file.empty()) return nullptr;
  FrontEnd* const beside = LoadFrontEnd(FolderOf(own_file) + kPlugIn);
  return beside ? beside : LoadFrontEnd(FolderOf(WithoutLinks(own_file)) + kPlugIn);
}

ScopedFrontEnd::ScopedFrontEnd(FrontEnd* front_end)
    : front_end_(front_end), outer_(std::exchange(replacement, this)) {}

ScopedFrontEnd::~ScopedFrontEnd() { replacement = outer_; }

}  // namespace orreryui
