#include "host/plug_in_check.h"

#include <dlfcn.h>
#include <orreryui/orreryui.h>

#include <filesystem>

namespace orreryui::host {
namespace {

using std::filesystem::path;

using ExplainFunction = int(const char* release, void (*tell)(void* whom, const char* finding),
                            void* whom);

// The file of the library as the loader spelled it, and the same without links if that lies in
// another folder. The operation is asked for by name: its address may be that of a stub in the
// program.
std::vector<path> LibraryFiles() {
  Dl_info info{};
  void* const operation = dlsym(RTLD_DEFAULT, "OnRengeConfirm");
  if (!operation || dladdr(operation, &info) == 0 || !info.dli_fname) return {};
  const path spelled = info.dli_fname;
  std::error_code failed;
  const path real = canonical(spelled, failed);
  if (failed || equivalent(real.parent_path(), spelled.parent_path(), failed)) return {spelled};
  return {spelled, real};
}

void Tell(void* check, const char* finding) {
  static_cast<PlugInCheck*>(check)->findings.emplace_back(finding);
}

// Null if there is nothing at the path that can be loaded.
void* Load(const path& file, PlugInCheck& check) {
  std::error_code failed;
  void* const plug_in = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  const char* const words = plug_in ? "loaded" : dlerror();
  const std::string state = plug_in || exists(file, failed) ? words : "there is no such file";
  check.findings.push_back("plug-in " + file.string() + ": " + state);
  return plug_in;
}

void Ask(void* plug_in, PlugInCheck& check) {
  auto* const explain = reinterpret_cast<ExplainFunction*>(dlsym(plug_in, "orreryui_explain"));
  if (explain) {
    check.works = explain(ORRERYUI_RELEASE, &Tell, &check) != 0;
  } else {
    check.findings.emplace_back("this plug-in can't be asked: it belongs to something else");
  }
}

}  // namespace

PlugInCheck CheckPlugIn() {
  PlugInCheck check;
  for (const path& library : LibraryFiles()) {
    check.findings.push_back("library " + library.string());
    // One that isn't a full path would lead to whatever lies in the working directory.
    if (!library.is_absolute()) continue;
    void* const plug_in = Load(library.parent_path() / "orreryui" / "liborreryui-qt.so", check);
    if (!plug_in) continue;
    Ask(plug_in, check);
    break;
  }
  return check;
}

}  // namespace orreryui::host
