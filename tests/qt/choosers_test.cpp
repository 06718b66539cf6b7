#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

class Choosers : public testing::Test {
 protected:
  // Qt keeps folders and widths of its chooser in a file of the user's.
  Choosers() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings_.path());
  }

  const QTemporaryDir settings_;
  FrontEnd& front_end_ = *LoadFrontEnd();
};

TEST_F(Choosers, AMessageWarnsWithOkAndCancelInJapanese) {
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

  enum class Hand { kKeyboard, kMouse };
  static constexpr Hand kHands[] = {Hand::kKeyboard, Hand::kMouse};

  static void Type(QWidget& front, const QString& name, Hand hand = Hand::kKeyboard) {
    front.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
    auto* const edit = front.findChild<QLineEdit*>("fileNameEdit");
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    name.isEmpty() ? QTest::keyClick(edit, Qt::Key_Delete) : edit->insert(name);
    if (hand == Hand::kKeyboard) return QTest::keyClick(edit, Qt::Key_Return);
    auto* const buttons = front.findChild<QDialogButtonBox*>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Open), Qt::LeftButton);
  }

  static void CloseBox() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr) box->close();
  }

  // What comes of the name, whether or not it brings up a box.
  std::string Choose(const QString& name, Hand hand) {
    ThenInFront([&](QWidget& front) {
      QTimer::singleShot(0, CloseBox);
      Type(front, name, hand);
      if (front.isVisible()) front.close();
    });
    return front_end_.ChooseFile(request_).value_or("");
  }

  std::string InFolder(const QString& name) { return folder_.filePath(name).toStdString(); }

  void Make(const QString& name) {
    QFile file(folder_.filePath(name));
    file.open(QIODevice::WriteOnly);
  }

  QTemporaryDir folder_;
  FileChooserRequest request_;
};

TEST_F(FileChooser, StartsFromTheNameWithFiltersThatShowTheirLabelsAlone) {
  request_.filters = {
      {"地点 files (*.txt)", {"*.txt"}}, {"All files (*.*)", {"*"}}, {"図", {"*.b"}}};
  ThenInFront([](QWidget& front) {
    auto& dialog = static_cast<QFileDialog&>(front);
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog));
    EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "図.txt");
    EXPECT_EQ(dialog.labelText(QFileDialog::Reject), "キャンセル");
    auto* const types = front.findChild<QComboBox*>("fileTypeCombo");
    auto* const files = front.findChild<QFileSystemModel*>();
    const char* const labels[] = {"地点 files (*.txt)", "All files (*.*)", "図"};
    const char* const patterns[] = {"*.txt", "*", "*.b"};
    for (int row : {0, 1, 2}) {
      if (row > 0) QTest::keyClick(types, Qt::Key_Down);
      EXPECT_EQ(types->currentText(), labels[row]);
      EXPECT_THAT(files->nameFilters(), testing::ElementsAre(patterns[row]));
    }
    static_cast<QDialog&>(front).accept();
  });
  EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("図.txt"));
}

TEST_F(FileChooser, EnterAndTheButtonTakeTheSameNames) {
  QDir(folder_.path()).mkdir("sub");
  for (const char* name : {"README", "README.txt", "Memo.TXT", "Photo.JPG", "何?.txt", "sub/a.b"}) {
    Make(name);
  }
  request_.default_extension = "txt";
  struct Case {
    const char* typed;       // a full path if it begins with /
    const char* chosen;      // null: nothing, as no such file exists
    const char* chosen_new;  // where files needn't exist
  };
  const Case cases[] = {{"図.txt", "図.txt", "図.txt"},
                        {"図", "図.txt", "図.txt"},
                        {"README", "README", "README"},
                        {"memo", "Memo.TXT", "Memo.TXT"},
                        {"/Photo.JPG", "Photo.JPG", "Photo.JPG"},
                        {"photo.jpg", "Photo.JPG", "Photo.JPG"},
                        {"何?.txt", "何?.txt", "何?.txt"},
                        {"/sub/A.B", "sub/a.b", "sub/a.b"},
                        {"new", nullptr, "new.txt"},
                        {"new.b", nullptr, "new.b"}};
  for (const auto& [typed, chosen, chosen_new] : cases) {
    const QString name = *typed == '/' ? folder_.path() + typed : typed;
    for (const Hand hand : kHands) {
      request_.must_exist = true;
      EXPECT_EQ(Choose(name, hand), chosen == nullptr ? "" : InFolder(chosen)) << typed;
      request_.must_exist = false;
      EXPECT_EQ(Choose(name, hand), InFolder(chosen_new)) << typed;
    }
  }
}

TEST_F(FileChooser, StaysOpenForWhatCannotBeChosen) {
  QDir(folder_.path()).mkdir("sub");
  Make("t.txt");
  request_.must_exist = true;
  request_.default_extension = "txt";
  request_.refused = [](const std::string& path) { return path.ends_with("t.txt") ? "t" : ""; };
  for (const Hand hand : kHands) {
    ThenInFront([&](QWidget& front) {
      ThenInFront([](QWidget& message) {
        EXPECT_TRUE(static_cast<QMessageBox&>(message).text().contains("missing.txt"));
        static_cast<QDialog&>(message).accept();
      });
      Type(front, "missing", hand);
      for (const char* typed : {"t.txt", "t", "T"}) {
        QToolTip::hideText();
        Type(front, typed, hand);
        EXPECT_TRUE(QToolTip::text().endsWith(": t"));
      }
      Type(front, "", hand);
      Type(front, "sub", hand);
      EXPECT_TRUE(front.isVisible());
      EXPECT_EQ(front.findChild<QLineEdit*>("fileNameEdit")->text(), "");
      Type(front, "../図.txt", hand);
    });
    EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("図.txt"));
  }
}

TEST_F(FileChooser, WildcardsSayWhatIsListedAndLeaveTheTypes) {
  QDir(folder_.path()).mkdir("sub");
  request_.filters.push_back({"All", {"*"}});
  request_.start_name = InFolder("*.txt");
  for (const Hand hand : kHands) {
    request_.must_exist = hand == Hand::kMouse;
    ThenInFront([this, hand](QWidget& front) {
      auto& dialog = static_cast<QFileDialog&>(front);
      auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
      auto* const types = front.findChild<QComboBox*>("fileTypeCombo");
      auto* const files = front.findChild<QFileSystemModel*>();
      EXPECT_EQ(name->text(), "*.txt");
      static_cast<QDialog&>(front).accept();
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(types->count(), 2);
      Type(front, "sub/a?.*", hand);
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

class FilePanel : public FileChooser {
 protected:
  FilePanel() {
    for (const char* folder : {"c", "c/d"}) QDir(folder_.path()).mkdir(folder);
    for (const char* name : {"a.txt", "b.txt"}) Make(name);
    request_.start_name = folder_.path().toStdString() + "/";
    request_.panel = &panel_;
    panel_.layout.number = 175;
    panel_.label = "選&択";
    panel_.Add(ControlKind::kRadioButton, 1154, "追加").checked = true;
    panel_.Add(ControlKind::kRadioButton, 1155, "新規作成");
  }

  static QTreeView& Rows(QWidget& front) { return *front.findChild<QTreeView*>("treeView"); }

  // Where the row of a name is, once the chooser has read its folder.
  static QPoint RowOf(QWidget& front, const QString& name) {
    QTreeView& rows = Rows(front);
    QModelIndex found;
    EXPECT_TRUE(QTest::qWaitFor([&] {
      const auto hits = rows.model()->match(rows.model()->index(0, 0, rows.rootIndex()),
                                            Qt::DisplayRole, name, 1, Qt::MatchExactly);
      if (!hits.isEmpty()) found = hits.front();
      return found.isValid() && !rows.visualRect(found).isEmpty();
    }));
    return rows.visualRect(found).center();
  }

  static void ClickRow(QWidget& front, const QString& name) {
    QTest::mouseClick(Rows(front).viewport(), Qt::LeftButton, {}, RowOf(front, name));
  }

  static QString Label(QWidget& front) {
    return front.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->text();
  }

  FakePanel panel_;
};

TEST_F(FilePanel, HearsOfTheRowsOfFilesAndOfFoldersAndNotOfNames) {
  ThenInFront([&](QWidget& front) {
    const auto expect = [&](const FakeSession::Gestures& heard) {
      EXPECT_EQ(panel_.Take(), heard);
      EXPECT_EQ(Label(front), "選&&択");
    };
    auto* const name = front.findChild<QLineEdit*>("fileNameEdit");
    const auto is_sorted = [&] { return RowOf(front, "a.txt").y() < RowOf(front, "b.txt").y(); };
    EXPECT_TRUE(QTest::qWaitFor(is_sorted));  // which comes after the reading
    ClickRow(front, "a.txt");
    expect({"file " + InFolder("a.txt")});
    QTest::keyClick(&Rows(front), Qt::Key_Down);
    expect({"file " + InFolder("b.txt")});
    QTest::mouseClick(front.findChild<QAbstractButton*>("listModeButton"), Qt::LeftButton);
    auto& list = *front.findChild<QListView*>("listView");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_End);
    expect({"file " + InFolder("図.txt")});
    QTest::mouseClick(front.findChild<QAbstractButton*>("detailModeButton"), Qt::LeftButton);
    ClickRow(front, "c");
    expect({});
    QTest::mouseClick(name, Qt::LeftButton);
    name->selectAll();
    QTest::keyClicks(name, "c/d");
    expect({});
    name->selectAll();
    QTest::keyClicks(name, "a.tx");
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_EQ(name->text(), "a.txt");
    expect({});
    ClickRow(front, "a.txt");
    expect({"file " + InFolder("a.txt")});
    ClickRow(front, "b.txt");
    expect({"file " + InFolder("b.txt")});
    ClickRow(front, "c");
    QTest::mouseDClick(Rows(front).viewport(), Qt::LeftButton, {}, RowOf(front, "c"));
    expect({"folder"});
    RowOf(front, "d");
    QTest::mouseClick(front.findChild<QAbstractButton*>("toParentButton"), Qt::LeftButton);
    expect({"folder"});
    Type(front, "c");
    expect({"folder"});
    Type(front, "../a");
  });
  request_.default_extension = "txt";
  EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("a.txt"));
  EXPECT_THAT(panel_.Take(), testing::ElementsAre());
}

TEST_F(FilePanel, LiesBelowTheChooserWhichTakesItsKeys) {
  panel_.layout.height = 200;
  ThenInFront([&](QWidget& front) {
    EXPECT_EQ(front.objectName(), "175");
    EXPECT_LE(front.height(), front.screen()->availableGeometry().height());
    auto& append = ControlWidget<QRadioButton>(front, 1154);
    auto& create = ControlWidget<QRadioButton>(front, 1155);
    const auto place = [&](const QWidget& widget) {
      return QRect(widget.mapTo(&front, QPoint()), widget.size());
    };
    auto& buttons = *front.findChild<QDialogButtonBox*>();
    EXPECT_TRUE(front.rect().contains(place(append) | place(create)));
    EXPECT_GT(place(append).top(), place(buttons).bottom());
    EXPECT_GT(place(append).top(), place(*front.findChild<QWidget*>("fileTypeCombo")).bottom());
    ClickRow(front, "a.txt");
    panel_.Take();
    buttons.button(QDialogButtonBox::Cancel)->setFocus();
    QTest::keyClick(front.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(append.hasFocus());
    QTest::keyClick(&append, Qt::Key_Down);
    EXPECT_THAT(panel_.Take(), testing::ElementsAre("focus 1154", "focus 1155", "click 1155"));
    QTest::mouseClick(&append, Qt::LeftButton, {}, {5, append.height() / 2});
    EXPECT_THAT(panel_.Take(), testing::ElementsAre("focus 1154", "click 1154"));
    QTest::keyClick(&append, Qt::Key_Return);
  });
  EXPECT_EQ(front_end_.ChooseFile(request_), InFolder("a.txt"));
  ThenInFront([](QWidget& front) {
    QTest::keyClick(&ControlWidget<QRadioButton>(front, 1154), Qt::Key_Escape);
  });
  EXPECT_EQ(front_end_.ChooseFile(request_), std::nullopt);
}

TEST_F(FilePanel, ClosesItsChooserWhenItEnds) {
  panel_.handler = [this](const std::string& gesture) { panel_.ended = gesture != "paint"; };
  ThenInFront([](QWidget& front) { ClickRow(front, "a.txt"); });
  EXPECT_EQ(front_end_.ChooseFile(request_), std::nullopt);
  panel_.on_start = [this] { panel_.ended = true; };
  EXPECT_EQ(front_end_.ChooseFile(request_), std::nullopt);
}

// Run at several scales, in a host that isn't Japanese.
class FitFileChooser : public FileChooser {
 protected:
  static QStringList Texts(QWidget& front) {
    QStringList texts{front.windowTitle()};
    for (const auto* widget : front.findChildren<QWidget*>()) {
      texts << widget->toolTip() << widget->accessibleName() << widget->accessibleDescription();
    }
    for (const auto* label : front.findChildren<QLabel*>()) texts << label->text();
    for (const auto* button : front.findChildren<QAbstractButton*>()) texts << button->text();
    for (const auto* action : front.findChildren<QAction*>()) texts << action->text();
    return texts;
  }

  static QStringList Texts(const QAbstractItemModel& model, const QModelIndex& parent, int column) {
    QStringList texts{model.headerData(column, Qt::Horizontal).toString()};
    for (int row = 0; row < model.rowCount(parent); ++row) {
      texts << model.index(row, column, parent).data().toString();
    }
    return texts;
  }

  static bool HasRoom(const QAbstractItemView& view, int column, int width) {
    return width >= view.sizeHintForColumn(column);
  }
};

TEST_F(FitFileChooser, IsJapaneseAndHasRoomForItsTexts) {
  QDir(folder_.path()).mkdir("写真");
  Make("とても長い名前の図がもう一つここにある.図");
  request_.filters = {{"図", {"*"}}};
  request_.preview_pictures = true;
  for (int time : {1, 2}) {
    SCOPED_TRACE(time);
    ThenInFront([](QWidget& front) {
      auto* const list = front.findChild<QTreeView*>("treeView");
      auto* const side = front.findChild<QListView*>("sidebar");
      const QAbstractItemModel& files = *list->model();
      EXPECT_TRUE(QTest::qWaitFor([&] { return files.rowCount(list->rootIndex()) == 3; }));
      const QStringList texts = Texts(front) + Texts(files, list->rootIndex(), 0) +
                                Texts(files, list->rootIndex(), 2) +
                                Texts(*side->model(), QModelIndex(), 0).mid(1, 1);
      for (QString text : texts) {
        text.remove("txt", Qt::CaseInsensitive);
        EXPECT_FALSE(text.contains(QRegularExpression("[A-Za-z]{2}"))) << text.toStdString();
      }
      EXPECT_TRUE(HasRoom(*side, 0, side->viewport()->width()));
      for (int column = 0; column < files.columnCount(); ++column) {
        EXPECT_TRUE(QTest::qWaitFor([&] {
          return HasRoom(*list, column, list->columnWidth(column));
        })) << column;
        list->setColumnWidth(column, 9);  // is kept for the next time
      }
      front.close();
    });
    front_end_.ChooseFile(request_);
  }
}

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

TEST_F(Choosers, AColourHasRedInTheLowByteAndIsAskedForInJapaneseInAHostThatIsNot) {
  const LanguageWatch watch;
  const auto red = [] { return QCoreApplication::translate("QColorDialog", "&Red:"); };
  ThenInFront([&](QWidget& front) {
    auto& dialog = static_cast<QColorDialog&>(front);
    EXPECT_EQ(red(), "赤:");
    EXPECT_TRUE(dialog.testOption(QColorDialog::DontUseNativeDialog));
    EXPECT_EQ(dialog.currentColor(), QColor(0x11, 0x22, 0x33));
    auto* const buttons = dialog.findChild<QDialogButtonBox*>();
    EXPECT_EQ(buttons->button(QDialogButtonBox::Cancel)->text(), "キャンセル");
    dialog.setCurrentColor(QColor(1, 2, 3));
    QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
  });
  EXPECT_EQ(front_end_.ChooseColour(0x00332211), 0x00030201u);
  ThenInFront([](QWidget& front) { QTest::keyClick(&front, Qt::Key_Escape); });
  EXPECT_EQ(front_end_.ChooseColour(0), std::nullopt);
  EXPECT_EQ(red(), "&Red:");
  EXPECT_FALSE(watch.told);
}

}  // namespace
}  // namespace orreryui
