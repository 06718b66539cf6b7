// How the dialogs show points: a list of packed points, the boxes of one of them, and the choice
// how the host is to display them.
#ifndef ORRERYUI_POINTS_POINT_BOXES_H_
#define ORRERYUI_POINTS_POINT_BOXES_H_

#include <orreryui/cstring.h>

#include <vector>

#include "platform/dialogs/dialog.h"
#include "points/data_line.h"

namespace orreryui {

// The controls that show the fields of a point. A dialog may lack some.
struct PointBoxes {
  int place = kNoControlId;
  int item = kNoControlId;
  int latitude = kNoControlId;
  int longitude = kNoControlId;
  int text_file = kNoControlId;
  int picture = kNoControlId;
};

// Shows the packed point in row `row` of `points`, empty fields if there is no such row, and
// returns what it shows.
DataLine ShowPoint(CDialog& dialog, const PointBoxes& boxes, const std::vector<CString>& points,
                   int row);

// The points become the rows of a list.
void ListPoints(CDialog& dialog, int list, const std::vector<CString>& points);

// How many there are: "12件".
void ShowCount(CDialog& dialog, int id, int count);

// Which of how many is selected: "3/12" for row 2.
void ShowPosition(CDialog& dialog, int id, int row, int count);

// How the host is to display points. Hosts may pass in other words.
inline constexpr char kAutomaticDisplay[] = "AUTO";
inline constexpr char kManualDisplay[] = "MANUAL";

// Turns one of two radio buttons on: `automatic` for its word, `manual`, the next number, for any
// other one.
void CheckDisplay(CDialog& dialog, int automatic, int manual, const CString& display);

}  // namespace orreryui

#endif  // ORRERYUI_POINTS_POINT_BOXES_H_
