// No text of a template is cut on the screen, and nothing scrolls; run at several scales, and on a
// screen of 800 by 600 pixels.

#include <QScrollArea>
#include <QTest>
#include <algorithm>

#include "platform/dialogs/dialog.h"
#include "platform/dialogs/front_end_loader.h"
#include "tests/qt/fit_checks.h"
#include "tests/qt/plugin.h"
#include "tests/support/each_template.h"

namespace orreryui {
namespace {

bool ShowsText(const ControlTemplate& control) {
  return *control.text != '\0' && control.kind != ControlKind::kSwatch;
}

class TemplateFit : public testing::TestWithParam<const DialogTemplate*> {};

TEST_P(TemplateFit, NoTextIsCut) {
  const ScopedFrontEnd screen(LoadFrontEnd());
  const auto controls = GetParam()->controls;
  ThenInFront([&](QWidget& front) {
    EXPECT_EQ(ExpectNothingCut(front), std::count_if(controls.begin(), controls.end(), ShowsText));
    const bool at_scale_1 = front.devicePixelRatio() == 1;
    EXPECT_FALSE(at_scale_1 && front.findChild<QScrollArea*>() != nullptr);
    QTest::keyClick(&front, Qt::Key_Escape);
  });
  CDialog dialog(*GetParam());
  EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

INSTANTIATE_TEST_SUITE_P(All, TemplateFit, testing::ValuesIn(kAllTemplates), NumberOf);

}  // namespace
}  // namespace orreryui
