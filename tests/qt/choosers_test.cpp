#include <gmock/gmock.h>

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>

#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

class Choosers : public testing::Test {
 protected:
  // The test answers Qt's own choosers, not the desktop's.
  Choosers() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  FrontEnd& front_end_ = *LoadFrontEnd();
};

class MessageBoxes : public Choosers {};

TEST_F(MessageBoxes, WarnWithOkAndCancelInJapanese) {
  ThenInFront([](QWidget& front) {
    auto& box = static_cast<QMessageBox&>(front);
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.text(), "<b>削除しますか？");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    ASSERT_EQ(box.buttons().size(), 2);
    EXPECT_EQ(box.defaultButton()->text(), "OK");
    EXPECT_EQ(box.escapeButton()->text(), "キャンセル");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_EQ(front_end_.ShowMessage("<b>削除しますか？"), MessageBoxAnswer::kOk);
}

TEST_F(MessageBoxes, EscCloseBoxAndButtonCancel) {
  const std::vector<std::function<void(QMessageBox&)>> ways = {
      [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); },
      [](QMessageBox& box) { box.close(); },
      [](QMessageBox& box) { QTest::mouseClick(box.escapeButton(), Qt::LeftButton); }};
  for (const auto& way : ways) {
    ThenInFront([&](QWidget& front) { way(static_cast<QMessageBox&>(front)); });
    EXPECT_EQ(front_end_.ShowMessage("?"), MessageBoxAnswer::kCancel);
  }
}

class FileChooser : public Choosers {
 protected:
  FileChooser() {
    Make("図.txt");
    request_.start_name = folder_.filePath("図.txt").toStdString();
    request_.filters = {{"テキスト", {"*.txt", "*.dat"}}};
  }

  static void Type(QWidget& front, const QString& name) {
    auto* const edit = front.findChild<QLineEdit*>("fileNameEdit");
    edit->selectAll();
    edit->insert(name);
    QTest::keyClick(edit, Qt::Key_Return);
  }

  std::string InFolder(const QString& name) { return folder_.filePath(name).toStdString(); }

  void Make(const QString& name) {
    QFile file(folder_.filePath(name));
    file.open(QIODevice::WriteOnly);
  }

  QTemporaryDir folder_;
  FileChooserRequest request_;
};

TEST_F(FileChooser, StartsFromTheNameAndIsJapanese) {
  request_.must_exist = true;
  ThenInFront([](QWidget& front) {
    auto& dialog = static_cast<QFileDialog&>(front);
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "図.txt");
    EXPECT_THAT(dialog.nameFilters(), testing::ElementsAre("テキスト (*.txt *.dat)"));
    EXPECT_EQ(dialog.labelText(QFileDialog::Reject), "キャンセル");
    static_cast<QDialog&>(front).accept();
  });
  EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("図.txt"));
}

TEST_F(FileChooser, FiltersAreLabelledByTheirLabelsAndWorkByTheirPatterns) {
  request_.filters = {
      {"地点 files (*.txt)", {"*.txt"}}, {"All files (*.*)", {"*"}}, {"図", {"*.b"}}};
  ThenInFront([](QWidget& front) {
    auto* const types = front.findChild<QComboBox*>("fileTypeCombo");
    auto* const files = front.findChild<QFileSystemModel*>();
    const char* const labels[] = {"地点 files (*.txt)", "All files (*.*)", "図"};
    const char* const patterns[] = {"*.txt", "*", "*.b"};
    for (int row : {0, 1, 2}) {
      if (row > 0) QTest::keyClick(types, Qt::Key_Down);
      EXPECT_EQ(types->currentText(), labels[row]);
      EXPECT_THAT(files->nameFilters(), testing::ElementsAre(patterns[row]));
    }
    static_cast<QDialog&>(front).reject();
  });
  front_end_.ChooseFile(request_);
}

TEST_F(FileChooser, CompletesANewNameWithTheExtension) {
  request_.default_extension = "dat";
  ThenInFront([](QWidget& front) { Type(front, "new"); });
  EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("new.dat"));
}

TEST_F(FileChooser, TakesAnExistingNameWithoutAQuestion) {
  ThenInFront([](QWidget& front) { static_cast<QDialog&>(front).accept(); });
  EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("図.txt"));
}

TEST_F(FileChooser, FindsAFileWithTheExtensionOrWithout) {
  request_.must_exist = true;
  request_.default_extension = "txt";
  Make("README");
  Make("README.txt");
  Make("Memo.TXT");
  const std::pair<const char*, const char*> cases[] = {{"README", "README"},
                                                       {"図", "図.txt"},
                                                       {"図.txt", "図.txt"},
                                                       {"memo", "Memo.TXT"},
                                                       {"MEMO.txt", "Memo.TXT"}};
  for (const auto& [typed, chosen] : cases) {
    ThenInFront([typed = typed](QWidget& front) { Type(front, typed); });
    EXPECT_EQ(front_end_.ChooseFile(request_), InFolder(chosen));
  }
}

TEST_F(FileChooser, StaysOpenForAPathThatCannotBeUsed) {
  request_.must_exist = true;
  request_.refused = [](const std::string& path) { return path.ends_with("t.txt") ? "t" : ""; };
  Make("t.txt");
  ThenInFront([](QWidget& front) {
    Type(front, "t.txt");
    EXPECT_TRUE(front.isVisible());
    EXPECT_TRUE(QToolTip::text().contains("t"));
    Type(front, "図.txt");
  });
  EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("図.txt"));
}

TEST_F(FileChooser, StaysOpenForAFileThatMustExistAndDoesNot) {
  request_.must_exist = true;
  request_.default_extension = "txt";
  ThenInFront([](QWidget& front) {
    ThenInFront([](QWidget& message) {
      EXPECT_TRUE(static_cast<QMessageBox&>(message).text().contains("missing"));
      static_cast<QDialog&>(message).accept();
    });
    Type(front, "missing");
    EXPECT_TRUE(front.isVisible());
    static_cast<QDialog&>(front).reject();
  });
  EXPECT_EQ(front_end_.ChooseFile(request_), std::nullopt);
}

TEST_F(FileChooser, WildcardsSayWhatIsListedAndLeaveTheTypes) {
  QDir(folder_.path()).mkdir("sub");
  request_.filters.push_back({"All", {"*"}});
  request_.start_name = InFolder("*.txt");
  for (const bool must_exist : {true, false}) {
    request_.must_exist = must_exist;
    ThenInFront([this](QWidget& front) {
      auto& dialog = static_cast<QFileDialog&>(front);
      auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
      auto* const types = front.findChild<QComboBox*>("fileTypeCombo");
      auto* const files = front.findChild<QFileSystemModel*>();
      EXPECT_EQ(name->text(), "*.txt");
      static_cast<QDialog&>(front).accept();
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(types->count(), 2);
      Type(front, "sub/a?.*");
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(dialog.directory(), QDir(folder_.filePath("sub")));
      EXPECT_EQ(name->text(), "a?.*");
      EXPECT_THAT(files->nameFilters(), testing::ElementsAre("a?.*"));
      QTest::keyClick(types, Qt::Key_Down);
      EXPECT_THAT(files->nameFilters(), testing::ElementsAre("*"));
      dialog.reject();
    });
    EXPECT_EQ(front_end_.ChooseFile(request_), std::nullopt);
  }
}

TEST_F(FileChooser, AFileMayBeNamedLikeAPattern) {
  Make("何?.txt");
  request_.must_exist = true;
  ThenInFront([](QWidget& front) { Type(front, "何?.txt"); });
  EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("何?.txt"));
}

TEST_F(FileChooser, ANameWithoutAFolderStartsWhereTheLastFileWasChosen) {
  ThenInFront([](QWidget& front) { static_cast<QDialog&>(front).accept(); });
  EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("図.txt"));
  request_.start_name = "*.txt";
  ThenInFront([this](QWidget& front) {
    EXPECT_EQ(static_cast<QFileDialog&>(front).directory(), QDir(folder_.path()));
    static_cast<QDialog&>(front).reject();
  });
  EXPECT_EQ(front_end_.ChooseFile(request_), std::nullopt);
}

class ColourChooser : public Choosers {};

// Notes whether a window is told of another language.
class LanguageWatch : public QObject {
 public:
  LanguageWatch() { qApp->installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    told = told || event->type() == QEvent::LanguageChange;
    return false;
  }
  bool told = false;
};

TEST_F(ColourChooser, IsJapaneseInAHostThatIsNot) {
  const LanguageWatch watch;
  const auto red = [] { return QCoreApplication::translate("QColorDialog", "&Red:"); };
  ThenInFront([&](QWidget& front) {
    QStringList labels;
    for (const QLabel* label : front.findChildren<QLabel*>()) labels << label->text();
    EXPECT_EQ(labels.filter("赤").size(), 1);
    EXPECT_EQ(red(), "赤:");
    front.close();
  });
  front_end_.ChooseColour(0);
  EXPECT_EQ(red(), "&Red:");
  EXPECT_FALSE(watch.told);
}

TEST_F(ColourChooser, HandsBackTheColourWithRedInTheLowByte) {
  ThenInFront([](QWidget& front) {
    auto& dialog = static_cast<QColorDialog&>(front);
    EXPECT_EQ(dialog.currentColor(), QColor(0x11, 0x22, 0x33));
    auto* const buttons = dialog.findChild<QDialogButtonBox*>();
    EXPECT_EQ(buttons->button(QDialogButtonBox::Cancel)->text(), "キャンセル");
    dialog.setCurrentColor(QColor(1, 2, 3));
    QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
  });
  EXPECT_EQ(front_end_.ChooseColour(0x00332211), 0x00030201u);
  ThenInFront([](QWidget& front) { QTest::keyClick(&front, Qt::Key_Escape); });
  EXPECT_EQ(front_end_.ChooseColour(0), std::nullopt);
}

}  // namespace
}  // namespace orreryui
