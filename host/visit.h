// A short visit to one operation: what the tour passes in, what it does in the dialogs, and what
// must come back.
#ifndef ORRERYUI_HOST_VISIT_H_
#define ORRERYUI_HOST_VISIT_H_

#include <functional>
#include <string>
#include <vector>

#include "host/hand.h"

namespace orreryui::host {

// What is done in one go in the dialog of the template `dialog`, once that is the innermost one. A
// step that opens a further dialog is its dialog's last until that has closed.
struct Step {
  int dialog = 0;
  std::function<void(Hand&)> act;
};

struct Visit {
  std::string operation;
  std::vector<Step> steps;
  std::string expected_result;
};

// Each in a file of its own under visits/.
Visit VisitMapPalleteSet();
Visit VisitLegendElevetion();
Visit VisitDllAlbumRegist();
Visit VisitAlbumUpdate();
Visit VisitDataSourceSet();
Visit VisitMapTypeSet();
Visit VisitMemoDisplay();
Visit VisitRangeConfirm();
Visit VisitTextDisplay();

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_VISIT_H_
