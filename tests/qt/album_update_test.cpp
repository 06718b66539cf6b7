// An album on the screen, from the file that an editor rewrites to the point that the user changes.
#include <gtest/gtest.h>
#include <orreryui/orreryui.h>

#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/dialogs/front_end_loader.h"
#include "platform/strings/code_page_932.h"
#include "platform/strings/japanese_literal.h"
#include "tests/qt/plugin.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

constexpr char kAlbum[] = "a.alb";

class AlbumUpdateOnScreen : public testing::Test {
 protected:
  std::string Call(const std::function<void(QWidget& dialog)>& user,
                   const std::string& editor = "") {
    ThenInFront(user);
    return ToUtf8(OnAlbumUpdate(7, "old", folder_.Argument() + kAlbum, "鎌倉"_sj, "駅"_sj, "139.5",
                                "35.3", editor.c_str()));
  }

  static void Click(QWidget& dialog, int id) {
    QTest::mouseClick(&ControlWidget<QPushButton>(dialog, id), Qt::LeftButton);
  }
  static void PickRow(QWidget& dialog, int row) {
    auto& list = ControlWidget<QListWidget>(dialog, 128);
    const QPoint place = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  }
  static std::string Text(QWidget& dialog, int id) {
    return ControlWidget<QPlainTextEdit>(dialog, id).toPlainText().toStdString();
  }

  TestFolder folder_;
  ScopedFrontEnd screen_{LoadFrontEnd()};
};

TEST_F(AlbumUpdateOnScreen, NothingReachesTheDialogWhileTheEditorRuns) {
  folder_.Write(kAlbum, std::string("大仏 1 2 青銅 a.txt\r\n長谷寺 1 2 \r\n"_sj));
  // Waits until the keys below have been pressed.
  const std::string editor =
      folder_.WriteProgram("ed",
                           "while [ ! -e \"$(dirname \"$0\")/pressed\" ]; do sleep 0.01; done\n"
                           "echo 'new 1 2 i' > \"$1\"");
  const std::string result = Call(
      [&](QWidget& dialog) {
        PickRow(dialog, 0);
        QTimer::singleShot(50, &dialog, [&] {
          QTest::keyClicks(&ControlWidget<QPlainTextEdit>(dialog, 129), "x");
          QTest::keyClick(&dialog, Qt::Key_Escape);
          folder_.Write("pressed", "");
        });
        Click(dialog, 1076);
        EXPECT_EQ(folder_.Read(kAlbum), "new 1 2 i\n");
        EXPECT_EQ(Text(dialog, 106), "大仏");
        EXPECT_EQ(Text(dialog, 129), "鎌倉");
        Click(dialog, 103);
      },
      editor);
  EXPECT_EQ(result, "0|2|鎌倉 35.3 139.5 駅 ");
}

}  // namespace
}  // namespace orreryui
