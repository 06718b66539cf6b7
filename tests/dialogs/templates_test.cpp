// Every template is well made, and every message map fits its template.
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <set>
#include <vector>

#include "albums/album_regist_dialog.h"
#include "albums/album_update_dialog.h"
#include "albums/data_source_dialog.h"
#include "appearance/legend_dialog.h"
#include "appearance/map_type_dialog.h"
#include "appearance/palette_dialog.h"
#include "appearance/region_dialog.h"
#include "retrieval/range_dialog.h"
#include "templates/album_regist.h"
#include "templates/album_update.h"
#include "templates/data_source.h"
#include "templates/legend.h"
#include "templates/map_type.h"
#include "templates/memo.h"
#include "templates/palette.h"
#include "templates/range.h"
#include "templates/region.h"
#include "templates/text_view.h"

namespace orreryui {
namespace {

struct Entry {
  const DialogTemplate& dialog_template;
  std::vector<std::pair<int, int>> handled;  // ranges of control numbers in the message map
};

void PrintTo(const Entry& entry, std::ostream* out) {
  *out << "template " << entry.dialog_template.number;
}

template <class D>
Entry EntryOf(const DialogTemplate& dialog_template) {
  Entry entry{dialog_template, {}};
  for (const Message<D>& message : D::Messages()) {
    entry.handled.emplace_back(message.First(), message.Last());
  }
  return entry;
}

std::vector<Entry> AllTemplates() {
  return {
      EntryOf<CDlgAlbumRegist>(album_regist::kTemplate),
      EntryOf<CDlgAlbumUpdate>(album_update::kTemplate),
      EntryOf<CDlgDataSource>(data_source::kTemplate),
      EntryOf<CDlgLegend>(legend::kTemplate),
      EntryOf<CDlgMapType>(map_type::kTemplate),
      EntryOf<CDlgPalette>(palette::kTemplate),
      EntryOf<CDlgRange>(range::kTemplate),
      EntryOf<CDlgRegion>(region::kTemplate),
      {memo::kTemplate, {}},
      {text_view::kTemplate, {}},
  };
}

bool Overlap(const DialogRect& a, const DialogRect& b) {
  return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

bool Contains(const DialogRect& a, const DialogRect& b) {
  return a.x <= b.x && a.y <= b.y && a.x + a.width >= b.x + b.width &&
         a.y + a.height >= b.y + b.height;
}

class TemplateTest : public testing::TestWithParam<Entry> {
 protected:
  const DialogTemplate& dialog_template = GetParam().dialog_template;
};

TEST_P(TemplateTest, NumbersAreUnique) {
  std::set<int> ids;
  for (const ControlTemplate& control : dialog_template.controls) {
    if (control.id == kNoControlId) continue;
    EXPECT_TRUE(ids.insert(control.id).second) << control.id;
  }
}

TEST_P(TemplateTest, ControlsLieInsideAndApart) {
  const DialogRect whole{0, 0, dialog_template.width, dialog_template.height};
  const auto controls = dialog_template.controls;
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

TEST_P(TemplateTest, RadioButtonsStandInGroupsThatBegin) {
  ControlKind before = ControlKind::kStatic;
  for (const ControlTemplate& control : dialog_template.controls) {
    if (control.kind == ControlKind::kRadioButton && before != ControlKind::kRadioButton) {
      EXPECT_TRUE((control.flags & kGroupStart) != 0) << control.id;
    }
    before = control.kind;
  }
}

TEST_P(TemplateTest, TheMessageMapNamesOnlyControlsOfTheTemplate) {
  for (const auto& [first, last] : GetParam().handled) {
    for (int id = first; id <= last; ++id) {
      EXPECT_TRUE(std::any_of(dialog_template.controls.begin(), dialog_template.controls.end(),
                              [id](const ControlTemplate& control) { return control.id == id; }))
          << id;
    }
  }
}

std::string NumberOf(const testing::TestParamInfo<Entry>& entry) {
  return std::to_string(entry.param.dialog_template.number);
}

INSTANTIATE_TEST_SUITE_P(All, TemplateTest, testing::ValuesIn(AllTemplates()), NumberOf);

}  // namespace
}  // namespace orreryui
