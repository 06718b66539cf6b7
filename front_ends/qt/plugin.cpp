// The entry of the plug-in.

#include "front_ends/qt/application.h"
#include "front_ends/qt/qt_front_end.h"
#include "platform/front_end.h"

extern "C" __attribute__((visibility("default"))) orreryui::FrontEnd* orreryui_front_end(
    int version) {
  if (version != orreryui::kFrontEndVersion) return nullptr;
  try {
    if (!orreryui::FindOrMakeApplication()) return nullptr;
    // Kept for ever: nothing of Qt may be touched while the process ends.
    static auto* const front_end = new orreryui::QtFrontEnd;
    return front_end;
  } catch (...) {
    return nullptr;
  }
}
