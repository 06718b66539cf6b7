#include "frame/choose_open_file.h"

#include "frame/split.h"
#include "platform/dialogs/inner_windows.h"
#include "platform/strings/code_page_932.h"
#include "platform/system/path.h"

namespace orreryui {
namespace {

FileFilter MakeFilter(CString filter) {
  const CString label = TakeField(filter, '|');
  return {ToUtf8(label), {ToUtf8(filter)}};
}

// Names without a dot are among them, too.
FileFilter AllFiles() { return {"All files (*.*)", {"*"}}; }

// With the separator; empty for a name alone.
std::string FolderOf(const char* path) {
  const std::string native = NativePath(path);
  return native.substr(0, native.rfind('/') + 1);
}

}  // namespace

CString ChooseOpenFile(const char* default_extension, const char* start_name, const char* filter,
                       const char* current) {
  MessageBeep();
  const auto native = ChooseFile({.start_name = FolderOf(current) + ToUtf8(start_name),
                                  .default_extension = ToUtf8(default_extension),
                                  .must_exist = true,
                                  .filters = {MakeFilter(filter), AllFiles()},
                                  .refused = RefusedInPath});
  if (!native) return CString();
  const auto chosen = PathFromNative(*native);
  if (!chosen) {
    MessageBeep();
    return CString();
  }
  CString path = chosen->c_str();
  path.MakeLower();
  return path;
}

}  // namespace orreryui
