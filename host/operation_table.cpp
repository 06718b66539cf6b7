#include "host/operation_table.h"

#include <orreryui/orreryui.h>

#include <algorithm>

namespace orreryui::host {
namespace {

Operation DataSourceSet() {
  Operation operation;
  operation.name = "OnDataSourceSet";
  operation.purpose = "Choose, add and take off data files";
  operation.arguments = {
      {"SELECTED", "index of the entry chosen so far, 0 for the common area", "0"},
      {"COMMON-AREA", "\"on\" if the common area is shown as well, else \"off\"", "on"},
      {"FOLDER", "folder of BINDER.DAT, with its separator", std::string(kDataFolder) + "/"},
  };
  operation.fields = {
      {"selected", "index of the chosen entry", 0},
      {"common area", "whether the common area is shown as well", 1},
      {"data file", "the chosen entry", std::nullopt},
  };
  return Describe(&OnDataSourceSet, operation);
}

Operation RangeConfirm() {
  Operation operation;
  operation.name = "OnRengeConfirm";
  operation.purpose = "Confirm a range drawn with the mouse";
  // Kamakura, from the Great Buddha to the harbour of Kotsubo.
  operation.arguments = {
      {"WEST", "longitude of the north-west corner", "139.5357"},
      {"NORTH", "latitude of the north-west corner", "35.3167"},
      {"EAST", "longitude of the south-east corner", "139.5581"},
      {"SOUTH", "latitude of the south-east corner", "35.2989"},
  };
  operation.fields = {{"answer", "1: the enlarged map of the range is wanted", std::nullopt}};
  operation.result_unless_ok = "-1";
  return Describe(&OnRengeConfirm, operation);
}

}  // namespace

const std::vector<Operation>& Operations() {
  static const std::vector<Operation> operations = {DataSourceSet(), RangeConfirm()};
  return operations;
}

const Operation* FindOperation(const std::string& name) {
  const auto& all = Operations();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const Operation& one) { return one.name == name; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace orreryui::host
