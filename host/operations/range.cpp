#include <orreryui/orreryui.h>

#include "host/operations/all.h"
#include "templates/range.h"

namespace orreryui::host {

using namespace range;

namespace {

constexpr int kDialog = kTemplate.number;

}  // namespace

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
  operation.fields = {{"answer", "1: the enlarged map of the range is wanted"}};
  operation.result_unless_ok = "-1";
  operation.steps = {{kDialog, &Hand::TakePicture},
                     {kDialog, [](Hand& hand) { hand.Click(kEnlarge); }}};
  operation.expected_result = "1";
  return Describe(&OnRengeConfirm, operation);
}

}  // namespace orreryui::host
