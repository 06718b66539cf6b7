// The palette editor on the screen: a palette from the open list, a colour from the real chooser.
#include <gtest/gtest.h>
#include <orreryui/orreryui.h>

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "platform/dialogs/front_end_loader.h"
#include "platform/strings/code_page_932.h"
#include "platform/strings/japanese_literal.h"
#include "tests/qt/plugin.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

constexpr char kRows[] =
    "   0  10  20  30\r\n"
    "   1  40  50  60\r\n"
    "4000 255 255 255\r\n";

class Appearance : public testing::Test {
 protected:
  Appearance() {
    folder_.Write("PLTTFILE.DAT", "春$Orbis1.plt\r\n秋$Orbis2.plt\r\n"_sj);
    folder_.Write("Orbis1.plt", kRows);
    folder_.Write("Orbis2.plt", std::string(kRows) + " 100  70  80  90\r\n");
  }

  static void Click(QWidget& dialog, int id) {
    QTest::mouseClick(&ControlWidget<QAbstractButton>(dialog, id), Qt::LeftButton);
  }
  static void PickPalette(QWidget& dialog, int row) {
    auto& list = *ControlWidget<QWidget>(dialog, 1029).findChild<QListWidget*>();
    const QPoint place = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  }

  TestFolder folder_;
  ScopedFrontEnd screen_{LoadFrontEnd()};
};

TEST_F(Appearance, AColourFromTheChooserGoesIntoTheFileOfThePickedPalette) {
  ThenInFront([](QWidget& dialog) {
    PickPalette(dialog, 1);

    ThenInFront([](QWidget& front) {
      auto& chooser = dynamic_cast<QColorDialog&>(front);
      EXPECT_EQ(chooser.currentColor(), QColor(70, 80, 90));
      chooser.setCurrentColor(QColor(1, 2, 3));
      auto* const buttons = chooser.findChild<QDialogButtonBox*>();
      QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    Click(dialog, 1018);
    EXPECT_EQ(ControlWidget<QAbstractButton>(dialog, 1111).text(), "更新");

    ThenInFront([](QWidget& front) {
      auto& question = dynamic_cast<QMessageBox&>(front);
      EXPECT_EQ(question.text(), "現在選択中の配色を更新します！");
      QTest::keyClick(&question, Qt::Key_Return);  // OK is the default button
    });
    Click(dialog, 1111);
    Click(dialog, 1);
  });
  const CString result = OnMapPalleteSet(0, "", folder_.Argument(), 0, 0x00030201, 0x00060504);
  EXPECT_EQ(result, "1|10|20|30|1|2|3|4|5|6|");
  const std::string written = folder_.Read("Orbis2.plt").value_or("none");
  EXPECT_NE(written.find(" 100   1   2   3       100m\r\n"), std::string::npos) << written;
  EXPECT_EQ(folder_.Read("Orbis1.plt"), kRows);
}

}  // namespace
}  // namespace orreryui
