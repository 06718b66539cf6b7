// The registered points that the sample host keeps: for each album, its point as it last came back.
#ifndef ORRERYUI_HOST_POINT_LIST_H_
#define ORRERYUI_HOST_POINT_LIST_H_

#include <QListWidget>
#include <vector>

#include "host/operation.h"

namespace orreryui::host {

class PointList : public QListWidget {
 public:
  PointList();

  // Keeps the point among `values`, in the place of an earlier one of the same album, and marks it.
  void Keep(const Values& values);

  // Takes the point of this album away, if there is one.
  void Drop(const std::string& album);

  // The values that make up the point in a row.
  const Values& Point(int row) const { return points_.at(static_cast<std::size_t>(row)); }

 private:
  int RowOf(const std::string& album) const;  // one behind the last if there is none

  std::vector<Values> points_;  // one a row
};

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_POINT_LIST_H_
