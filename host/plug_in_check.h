// Whether the library can show a window in this process, and what was found on the way.
#ifndef ORRERYUI_HOST_PLUG_IN_CHECK_H_
#define ORRERYUI_HOST_PLUG_IN_CHECK_H_

#include <string>
#include <vector>

namespace orreryui::host {

struct PlugInCheck {
  bool works = false;
  std::vector<std::string> findings;  // a line each, in the order in which they were made
};

// Looks for the plug-in where the library does, loads it as the library does, and has it try the
// platforms as it does at a dialog.
PlugInCheck CheckPlugIn();

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_PLUG_IN_CHECK_H_
