// An operation on the screen: what a hand at the keyboard and the mouse does to a new album.
#include <gtest/gtest.h>
#include <orreryui/orreryui.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "platform/dialogs/front_end_loader.h"
#include "platform/strings/code_page_932.h"
#include "platform/strings/japanese_literal.h"
#include "tests/qt/plugin.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

// The path as an album has it. Full-width letters stay as they are.
std::string Stored(std::string path) {
  for (char& c : path) {
    if (c == '/') c = '\\';
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return path;
}

class AlbumRegistration : public testing::Test {
 protected:
  AlbumRegistration() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  std::string Call(const std::function<void(QWidget& dialog)>& user) {
    ThenInFront(user);
    return ToUtf8(OnDLLAlbumRegist(7, "139", "35", folder_.Argument() + "a.alb", "1"));
  }

  static void Click(QWidget& dialog, int id) {
    QTest::mouseClick(&ControlWidget<QPushButton>(dialog, id), Qt::LeftButton);
  }
  template <class Edit>
  static void Type(QWidget& dialog, int id, const QString& text) {
    auto& edit = ControlWidget<Edit>(dialog, id);
    edit.setFocus(Qt::MouseFocusReason);
    QTest::keyClicks(&edit, text);
  }

  TestFolder folder_;
  ScopedFrontEnd screen_{LoadFrontEnd()};
};

TEST_F(AlbumRegistration, APathFromTheChooserIsStoredAndOpensAgain) {
  folder_.Write("写真メモＡ表.TXT", "Daibutsu");
  const std::string path = (folder_.Path() / "写真メモＡ表.TXT").string();
  QString shown, preview;
  const std::string result = Call([&](QWidget& dialog) {
    Type<QPlainTextEdit>(dialog, 101, "Kamakura");
    ThenInFront([&](QWidget& chooser) {
      auto* const name = chooser.findChild<QLineEdit*>("fileNameEdit");
      name->setText(QString::fromStdString(path));
      QTest::keyClick(name, Qt::Key_Return);
    });
    Click(dialog, 109);
    shown = ControlWidget<QLineEdit>(dialog, 108).text();
    ThenInFront([&](QWidget& memo) {
      preview = ControlWidget<QPlainTextEdit>(memo, 101).toPlainText();
      Click(memo, 1);
    });
    Click(dialog, 114);
    Type<QPlainTextEdit>(dialog, 106, "Kotokuin");
    Click(dialog, 117);
    Click(dialog, 1);
  });
  EXPECT_EQ(result, "7|139|35|Kamakura|");
  EXPECT_EQ(shown.toStdString(), Stored(path));
  EXPECT_EQ(preview, "=====   =====\nDaibutsu\n");
  EXPECT_EQ(ToUtf8(folder_.Read("a.alb")->c_str()), "Kotokuin 35 139  " + Stored(path) + "\r\n");
}

TEST_F(AlbumRegistration, EnterBreaksALineOrEndsTheRegistration) {
  EXPECT_EQ(Call([](QWidget& dialog) {
              Type<QPlainTextEdit>(dialog, 101, "a\rb");
              Type<QPlainTextEdit>(dialog, 104, "c");
              Type<QLineEdit>(dialog, 102, "p.jpg\r");
            }),
            "7|139|35|a\r\nb|c");
}

TEST_F(AlbumRegistration, EscAndTheCloseBoxGiveUp) {
  EXPECT_EQ(Call([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), "4||||");
  EXPECT_EQ(Call([](QWidget& dialog) { dialog.close(); }), "4||||");
}

}  // namespace
}  // namespace orreryui
