// The entries of the plug-in.

#include <cstring>

#include "front_ends/qt/application.h"
#include "front_ends/qt/qt_front_end.h"
#include "platform/front_end.h"

extern "C" __attribute__((visibility("default"))) orreryui::FrontEnd* orreryui_front_end(
    int version) {
  if (version != orreryui::kFrontEndVersion) return nullptr;
  try {
    QStringList findings;
    if (!orreryui::FindOrMakeApplication(findings)) return nullptr;
    // Kept for ever: nothing of Qt may be touched while the process ends.
    static auto* const front_end = new orreryui::QtFrontEnd;
    return front_end;
  } catch (...) {
    return nullptr;
  }
}

// For whoever wants to know why there is no window: takes the same way as the entry above, tells
// what it finds, a line each in UTF-8, and returns 1 if a window can be shown, else 0. `release` is
// the one that the caller belongs to; a plug-in of another one isn't tried.
extern "C" __attribute__((visibility("default"))) int orreryui_explain(
    const char* release, void (*tell)(void* whom, const char* finding), void* whom) {
  try {
    QStringList findings = {QStringLiteral("release of the plug-in: " ORRERYUI_RELEASE)};
    const bool works =
        std::strcmp(release, ORRERYUI_RELEASE) == 0 && orreryui::FindOrMakeApplication(findings);
    for (const QString& finding : findings) tell(whom, finding.toUtf8().constData());
    return works ? 1 : 0;
  } catch (...) {
    return 0;
  }
}
