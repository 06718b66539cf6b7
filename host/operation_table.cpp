#include "host/operation_table.h"

#include <algorithm>

#include "host/operations/all.h"

namespace orreryui::host {

const std::vector<Operation>& Operations() {
  static const std::vector<Operation> operations = {
      MapTypeSet(),     MapPalleteSet(), LegendElevetion(), DataSourceSet(),
      DllAlbumRegist(), AlbumUpdate(),   RouteRegist(),     RouteInformation(),
      TextDisplay(),    MemoDisplay(),   RangeConfirm()};
  return operations;
}

const Operation* FindOperation(const std::string& name) {
  const auto& all = Operations();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const Operation& one) { return one.name == name; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace orreryui::host
