#include "points/point_boxes.h"

#include "platform/strings/japanese_literal.h"
#include "points/packed_point.h"

namespace orreryui {

DataLine ShowPoint(CDialog& dialog, const PointBoxes& boxes, const std::vector<CString>& points,
                   int row) {
  const bool exists = row >= 0 && row < static_cast<int>(points.size());
  DataLine point = exists ? UnpackPoint(points[static_cast<std::size_t>(row)]) : DataLine();
  dialog.SetDlgItemText(boxes.place, point.place);
  dialog.SetDlgItemText(boxes.item, point.item);
  dialog.SetDlgItemText(boxes.latitude, point.latitude);
  dialog.SetDlgItemText(boxes.longitude, point.longitude);
  dialog.SetDlgItemText(boxes.text_file, point.text_file);
  dialog.SetDlgItemText(boxes.picture, point.picture);
  return point;
}

void ListPoints(CDialog& dialog, int list, const std::vector<CString>& points) {
  dialog.ResetContent(list);
  for (const CString& packed : points) dialog.AddString(list, PointLabel(packed));
}

void ShowCount(CDialog& dialog, int id, int count) {
  CString text;
  text.Format("%d", count);
  dialog.SetDlgItemText(id, text + "件"_sj);
}

void ShowPosition(CDialog& dialog, int id, int row, int count) {
  CString text;
  text.Format("%d/%d", row + 1, count);
  dialog.SetDlgItemText(id, text);
}

void CheckDisplay(CDialog& dialog, int automatic, int manual, const CString& display) {
  dialog.CheckRadioButton(automatic, manual, display == kAutomaticDisplay ? automatic : manual);
}

}  // namespace orreryui
