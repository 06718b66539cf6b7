#include "host/point_list.h"

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
  const auto same = std::find_if(points_.begin(), points_.end(), [&](const Values& one) {
    return one.at("ALBUM") == point.at("ALBUM");
  });
  const int row = static_cast<int>(same - points_.begin());
  if (same == points_.end()) {
    points_.push_back(point);
    addItem("");
  } else {
    *same = point;
  }
  item(row)->setText(QString::fromStdString(point["PLACE"] + ", " + point["ITEM"]).simplified());
  item(row)->setToolTip(QString::fromStdString(point["LATITUDE"] + ", " + point["LONGITUDE"] +
                                               ", " + point["ALBUM"]));
}

}  // namespace orreryui::host
