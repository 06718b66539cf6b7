// The choice of a data file on the screen: entries by the keys, a name by an input method, buttons
// by the mouse.
#include <gtest/gtest.h>
#include <orreryui/orreryui.h>

#include <QCheckBox>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

#include "platform/dialogs/front_end_loader.h"
#include "platform/strings/code_page_932.h"
#include "platform/strings/japanese_literal.h"
#include "tests/qt/plugin.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

constexpr char kCommonNote[] = "HD(共通領域)のﾃﾞｰﾀﾌｧｲﾙが地図に表示されます。";
constexpr char kBothNote[] = "HD(共通領域)と指定の２つのﾃﾞｰﾀﾌｧｲﾙが地図に表示されます。";
constexpr char kChosenNote[] = "指定のﾃﾞｰﾀﾌｧｲﾙが地図に表示されます。";

class DataSource : public testing::Test {
 protected:
  DataSource() { folder_.Write("BINDER.DAT", ";注\r\n東京\r\n大阪\r\n"_sj); }

  std::string Call(int selected, const char* common_area,
                   const std::function<void(QWidget& dialog)>& user) {
    ThenInFront(user);
    return ToUtf8(OnDataSourceSet(selected, common_area, folder_.Argument()));
  }

  std::string List() const { return folder_.Read("BINDER.DAT").value_or("none"); }

  static void Click(QWidget& dialog, int id) {
    QTest::mouseClick(&ControlWidget<QAbstractButton>(dialog, id), Qt::LeftButton);
  }
  static void PressInList(QWidget& dialog, Qt::Key key) {
    auto& files = ControlWidget<QComboBox>(dialog, 135);
    files.setFocus(Qt::MouseFocusReason);
    QTest::keyClick(&files, key);
  }
  static void EnterNewName(QWidget& dialog, const QString& reading, const QString& name) {
    auto& box = ControlWidget<QPlainTextEdit>(dialog, 101);
    box.setFocus(Qt::MouseFocusReason);
    QInputMethodEvent composing(reading, {});
    QApplication::sendEvent(&box, &composing);
    QInputMethodEvent chosen;
    chosen.setCommitString(name);
    QApplication::sendEvent(&box, &chosen);
  }

  static QString Chosen(QWidget& dialog) {
    return ControlWidget<QComboBox>(dialog, 135).currentText();
  }
  static QString NewName(QWidget& dialog) {
    return ControlWidget<QPlainTextEdit>(dialog, 101).toPlainText();
  }
  static QString Text(QWidget& dialog, int id) { return ControlWidget<QLabel>(dialog, id).text(); }

  TestFolder folder_;
  ScopedFrontEnd screen_{LoadFrontEnd()};
};

TEST_F(DataSource, ANameIsRegisteredAndAnotherDeleted) {
  const std::string result = Call(1, "off", [this](QWidget& dialog) {
    EXPECT_EQ(Chosen(dialog), "東京");
    EnterNewName(dialog, "かまくら", "鎌倉");
    Click(dialog, 103);
    EXPECT_EQ(NewName(dialog), "登録されました！");
    EXPECT_EQ(Chosen(dialog), "鎌倉");
    Click(dialog, 103);
    EXPECT_EQ(List(), ";注\r\n東京\r\n大阪\r\n鎌倉\r\n"_sj);

    PressInList(dialog, Qt::Key_Up);
    PressInList(dialog, Qt::Key_Up);
    EXPECT_EQ(Text(dialog, 1048), "  2/  4");
    Click(dialog, 109);
    EXPECT_EQ(Chosen(dialog), "HD(共通領域)");
    EXPECT_EQ(Text(dialog, 1048), "  1/  3");
    Click(dialog, 109);
    EXPECT_EQ(List(), "大阪\r\n鎌倉\r\n"_sj);

    PressInList(dialog, Qt::Key_Down);
    PressInList(dialog, Qt::Key_Down);
    Click(dialog, 1);
  });
  EXPECT_EQ(result, "2|off|鎌倉");
  EXPECT_EQ(List(), "大阪\r\n鎌倉\r\n"_sj);
}

TEST_F(DataSource, TheNoteFollowsTheCheckBoxAndNotTheSelection) {
  const std::string result = Call(2, "off", [](QWidget& dialog) {
    const auto& both = ControlWidget<QCheckBox>(dialog, 1020);
    EXPECT_FALSE(both.isChecked());
    EXPECT_EQ(Text(dialog, 1021), kChosenNote);
    Click(dialog, 1020);
    EXPECT_TRUE(both.isChecked());
    EXPECT_EQ(Text(dialog, 1021), kBothNote);
    PressInList(dialog, Qt::Key_Up);
    PressInList(dialog, Qt::Key_Up);
    EXPECT_EQ(Chosen(dialog), "HD(共通領域)");
    EXPECT_EQ(Text(dialog, 1021), kBothNote);
    Click(dialog, 1020);
    EXPECT_EQ(Text(dialog, 1021), kCommonNote);
    Click(dialog, 1020);
    PressInList(dialog, Qt::Key_Down);
    EXPECT_EQ(Text(dialog, 1021), kCommonNote);
    QTest::keyClick(&ControlWidget<QComboBox>(dialog, 135), Qt::Key_Return);
  });
  EXPECT_EQ(result, "1|on|東京");
  EXPECT_EQ(List(), ";注\r\n東京\r\n大阪\r\n"_sj);
}

TEST_F(DataSource, WhatWasRegisteredStaysAfterEsc) {
  EXPECT_EQ(Call(0, "on",
                 [](QWidget& dialog) {
                   EnterNewName(dialog, "ひょう", "表");
                   Click(dialog, 103);
                   QTest::keyClick(&ControlWidget<QPlainTextEdit>(dialog, 101), Qt::Key_Escape);
                 }),
            "");
  EXPECT_EQ(List(), ";注\r\n東京\r\n大阪\r\n表\r\n"_sj);
}

}  // namespace
}  // namespace orreryui
