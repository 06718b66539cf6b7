#include "frame/choose_open_file.h"

#include "frame/split.h"
#include "platform/dialogs/inner_windows.h"
#include "platform/strings/code_page_932.h"
#include "platform/system/path.h"

namespace orreryui {
namespace {

FileFilter MakeFilter(CString filter) {
  FileFilter made = {ToUtf8(TakeField(filter, '|')), {}};
  filter += ';';
  while (!filter.IsEmpty()) made.patterns.push_back(ToUtf8(TakeField(filter, ';')));
  return made;
}

// Names without a dot are among them, too.
FileFilter AllFiles() { return {"All files (*.*)", {"*"}}; }

// With the folder of `current`, which ends in its separator and is empty for a name alone.
std::string StartName(const char* name, const char* current) {
  const std::string native = NativePath(current);
  return *name ? native.substr(0, native.rfind('/') + 1) + ToUtf8(name) : native;
}

}  // namespace

CString ChooseOpenFile(const char* default_extension, const char* start_name, const char* filter,
                       const char* current, bool preview_pictures) {
  MessageBeep();
  const auto native = ChooseFile({.start_name = StartName(start_name, current),
                                  .default_extension = ToUtf8(default_extension),
                                  .must_exist = true,
                                  .filters = {MakeFilter(filter), AllFiles()},
                                  .preview_pictures = preview_pictures,
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
