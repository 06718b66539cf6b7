// Which front end shows the dialogs: the plug-in that lies beside the library, found and loaded at
// the first dialog, or one that the program put in its place.
#ifndef ORRERYUI_PLATFORM_DIALOGS_FRONT_END_LOADER_H_
#define ORRERYUI_PLATFORM_DIALOGS_FRONT_END_LOADER_H_

#include <string>

#include "platform/front_end.h"

namespace orreryui {

// The front end, or null if no window can be shown now; a later call tries again. The library
// doesn't own it, and a plug-in stays loaded until the process ends.
FrontEnd* CurrentFrontEnd();

// The front end of the plug-in at this path of the file system, or null if it can't be loaded, is
// made for another version of the seam, or can't show a window in this process.
FrontEnd* LoadFrontEnd(const std::string& path);

// Puts another front end in place for as long as the object lives. `front_end` must live as long;
// null stands for a machine that can't show a window.
class ScopedFrontEnd {
 public:
  explicit ScopedFrontEnd(FrontEnd* front_end);
  ~ScopedFrontEnd();
  ScopedFrontEnd(const ScopedFrontEnd&) = delete;
  ScopedFrontEnd& operator=(const ScopedFrontEnd&) = delete;

 private:
  FrontEnd* front_end_;
  ScopedFrontEnd* outer_;

  friend FrontEnd* CurrentFrontEnd();
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_FRONT_END_LOADER_H_
