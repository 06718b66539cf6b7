#include "host/point_list.h"

#include <QSignalBlocker>
#include <algorithm>

namespace orreryui::host {

PointList::PointList() {
  setObjectName("points");
  setAccessibleName("Registered points");
}

void PointList::Keep(const Values& values) {
  Values point;
  for (const char* name : {"PLACE", "ITEM", "LONGITUDE", "LATITUDE", "ALBUM"}) {
    point[name] = values.at(name);
  }
  const int row = RowOf(point["ALBUM"]);
  if (row == count()) {
    points_.emplace_back();
    addItem("");
  }
  points_[static_cast<std::size_t>(row)] = point;
  item(row)->setText(QString::fromStdString(point["PLACE"] + ", " + point["ITEM"]).simplified());
  item(row)->setToolTip(QString::fromStdString(point["LATITUDE"] + ", " + point["LONGITUDE"] +
                                               ", " + point["ALBUM"]));
  setCurrentRow(row);
}

void PointList::Drop(const std::string& album) {
  const int row = RowOf(album);
  if (row == count()) return;
  {
    const QSignalBlocker until_both_are_done(this);
    points_.erase(points_.begin() + row);
    delete takeItem(row);
  }
  emit itemSelectionChanged();
}

int PointList::RowOf(const std::string& album) const {
  const auto same = std::find_if(points_.begin(), points_.end(),
                                 [&](const Values& one) { return one.at("ALBUM") == album; });
  return static_cast<int>(same - points_.begin());
}

}  // namespace orreryui::host
