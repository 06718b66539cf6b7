// No text of a template is cut on the screen; run at several scales.

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "platform/dialogs/dialog.h"
#include "platform/dialogs/front_end_loader.h"
#include "tests/qt/fit_checks.h"
#include "tests/qt/plugin.h"
#include "tests/support/each_template.h"

namespace orreryui {
namespace {

bool ShowsItsText(ControlKind kind) {
  return kind == ControlKind::kStatic || kind == ControlKind::kGroupBox ||
         kind == ControlKind::kPushButton || kind == ControlKind::kPushLikeCheckBox ||
         kind == ControlKind::kRadioButton || kind == ControlKind::kCheckBox;
}

int TextCount(const DialogTemplate& shown) {
  int count = 0;
  for (const ControlTemplate& control : shown.controls) {
    count += ShowsItsText(control.kind) && *control.text != '\0';
  }
  return count;
}

// Returns how many buttons of the class have a label.
template <class Button>
int ExpectRoomForLabels(const QWidget& dialog, QStyle::SubElement part) {
  int count = 0;
  for (const Button* button : dialog.findChildren<Button*>()) {
    if (button->text().isEmpty()) continue;
    ExpectRoomForLabel(*button, part);
    ++count;
  }
  return count;
}

// Returns how many texts there are.
int ExpectNothingCut(const QWidget& dialog) {
  int count = ExpectRoomForLabels<QPushButton>(dialog, QStyle::SE_PushButtonContents) +
              ExpectRoomForLabels<QCheckBox>(dialog, QStyle::SE_CheckBoxContents) +
              ExpectRoomForLabels<QRadioButton>(dialog, QStyle::SE_RadioButtonContents);
  for (const QLabel* label : dialog.findChildren<QLabel*>()) {
    if (label->text().isEmpty()) continue;
    ExpectRoomForText(*label);
    ++count;
  }
  for (const QGroupBox* box : dialog.findChildren<QGroupBox*>()) {
    if (box->title().isEmpty()) continue;
    ExpectRoomForTitle(*box);
    ++count;
  }
  return count;
}

class TemplateFit : public testing::TestWithParam<const DialogTemplate*> {};

TEST_P(TemplateFit, NoTextIsCut) {
  const ScopedFrontEnd screen(LoadFrontEnd());
  int texts = 0;
  ThenInFront([&](QWidget& front) {
    texts = ExpectNothingCut(front);
    QTest::keyClick(&front, Qt::Key_Escape);
  });
  CDialog dialog(*GetParam());
  EXPECT_EQ(dialog.DoModal(), IDCANCEL);
  EXPECT_EQ(texts, TextCount(*GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, TemplateFit, testing::ValuesIn(kAllTemplates), NumberOf);

}  // namespace
}  // namespace orreryui
