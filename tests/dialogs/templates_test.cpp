// Every template is well made.
#include <algorithm>
#include <set>
#include <vector>

#include "tests/support/each_template.h"

namespace orreryui {
namespace {

bool Overlap(const DialogRect& a, const DialogRect& b) {
  return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

bool Contains(const DialogRect& a, const DialogRect& b) {
  return a.x <= b.x && a.y <= b.y && a.x + a.width >= b.x + b.width &&
         a.y + a.height >= b.y + b.height;
}

class TemplateTest : public testing::TestWithParam<const DialogTemplate*> {};

TEST_P(TemplateTest, NumbersAreUniqueAndRadioButtonsStandInGroupsThatBegin) {
  std::set<int> ids;
  ControlKind before = ControlKind::kStatic;
  for (const ControlTemplate& control : GetParam()->controls) {
    EXPECT_TRUE(control.id == kNoControlId || ids.insert(control.id).second) << control.id;
    const bool begins =
        control.kind == ControlKind::kRadioButton && before != ControlKind::kRadioButton;
    EXPECT_TRUE(!begins || (control.flags & kGroupStart) != 0) << control.id;
    before = control.kind;
  }
}

TEST_P(TemplateTest, ControlsLieInsideAndApart) {
  const DialogRect whole{0, 0, GetParam()->width, GetParam()->height};
  const auto controls = GetParam()->controls;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const DialogRect& place = controls[i].place;
    EXPECT_GT(place.width, 0) << controls[i].id;
    EXPECT_GT(place.height, 0) << controls[i].id;
    EXPECT_TRUE(Contains(whole, place)) << controls[i].id;
    for (std::size_t j = i + 1; j < controls.size(); ++j) {
      const bool framed =
          controls[i].kind == ControlKind::kGroupBox || controls[j].kind == ControlKind::kGroupBox;
      const bool inside = Contains(place, controls[j].place) || Contains(controls[j].place, place);
      EXPECT_TRUE(!Overlap(place, controls[j].place) || (framed && inside))
          << controls[i].id << " and " << controls[j].id;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, TemplateTest, testing::ValuesIn(kAllTemplates), NumberOf);

}  // namespace
}  // namespace orreryui
