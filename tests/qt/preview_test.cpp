// The preview of the file chooser; how it fits is run at several scales.
#include <sys/stat.h>

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "tests/qt/plugin.h"

namespace orreryui {
namespace {

class Preview : public testing::Test {
 protected:
  Preview() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
    request_.filters = {{"図", {"*"}}};
    request_.preview_pictures = true;
  }

  QString PathOf(const QString& name) const { return folder_.filePath(name); }

  void Write(const QString& name, const QByteArray& bytes) {
    QFile file(PathOf(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
  }

  void Save(const QString& name, QSize size, QImage::Format format = QImage::Format_RGB32) {
    QImage picture(size, format);
    picture.fill(Qt::blue);
    ASSERT_TRUE(picture.save(PathOf(name)));
  }

  // Lets `user` act while the chooser is open, with this file selected, and gives up.
  void Open(const QString& name, const std::function<void(QWidget&)>& user) {
    request_.start_name = PathOf(name).toStdString();
    ThenInFront([&](QWidget& front) {
      user(front);
      static_cast<QDialog&>(front).reject();
    });
    EXPECT_EQ(LoadFrontEnd()->ChooseFile(request_), std::nullopt);
  }

  static QLabel& Sheet(QWidget& front) {
    return *front.findChild<QWidget*>("preview")->findChild<QLabel*>();
  }

  // Waits until that is what a screen reader says of the preview.
  static void Expect(QWidget& front, const char* text) {
    const auto said = [&] { return Sheet(front).accessibleDescription().replace('\n', ' '); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return said() == text; })) << said().toStdString();
  }

  const QTemporaryDir folder_;
  FileChooserRequest request_;
};

constexpr char kNoPicture[] = "表示できる画像では ありません。";
constexpr char kBroken[] = "壊れているため 表示できません。";

TEST_F(Preview, SaysWhatStandsInTheFile) {
  QDir(folder_.path()).mkdir("folder");
  Save("図.png", {3000, 40});
  Save("tall.jpg", {50, 1200});
  Write("pixel.gif", QByteArray::fromHex("47494638396101000100800000FF0000000000"
                                         "2C000000000100010000020244003B"));
  Save("half.png", {60, 60});
  Save("head.bmp", {60, 60});
  for (const char* name : {"half.png", "head.bmp"}) QFile::resize(PathOf(name), 50);
  Write("huge.ppm", "P6 20000 20000 255\n");
  Write("drawing.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
  Write("memo.jpg", "memo");
  Write("empty.gif", "");
  const std::pair<const char*, const char*> cases[] = {
      {"図.png", "図.png 3000 × 40 画素"},
      {"tall.jpg", "tall.jpg 50 × 1200 画素"},
      {"pixel.gif", "pixel.gif 1 × 1 画素"},
      {"half.png", kBroken},
      {"head.bmp", kBroken},
      {"huge.ppm", "大きすぎるため 表示できません。"},
      {"drawing.svg", kNoPicture},
      {"memo.jpg", kNoPicture},
      {"empty.gif", kNoPicture},
      {"folder", "画像を選ぶと ここに表示されます。"}};
  for (const auto& [name, text] : cases) {
    SCOPED_TRACE(name);
    Open(name, [text = text](QWidget& front) { Expect(front, text); });
  }
}

TEST_F(Preview, FollowsTheSelectionAndTheEndWhileALargePictureIsRead) {
  Save("large.jpg", {6000, 6000}, QImage::Format_Grayscale8);
  Save("small.bmp", {7, 5});
  ASSERT_EQ(mkfifo(PathOf("pipe.png").toUtf8(), 0600), 0);
  Open("large.jpg", [](QWidget& front) {
    static_cast<QFileDialog&>(front).setFilter(QDir::AllEntries | QDir::System);
    auto* const edit = front.findChild<QLineEdit*>("fileNameEdit");
    const auto type = [&](const char* name) {
      edit->selectAll();
      QTest::keyClicks(edit, name);
    };
    type("small.bmp");
    Expect(front, "small.bmp 7 × 5 画素");
    type("pipe.png");
    Expect(front, kNoPicture);
    type("large.jpg");
  });
}

class FitPreview : public Preview {
 protected:
  // Where the colour is on the screen, in its pixels.
  static QRect PlaceOf(const QImage& screen, const QColor& colour) {
    QRect place;
    for (int y = 0; y < screen.height(); ++y) {
      for (int x = 0; x < screen.width(); ++x) {
        if (screen.pixelColor(x, y) == colour) place |= QRect(x, y, 1, 1);
      }
    }
    return place;
  }
};

TEST_F(FitPreview, KeepsPixelsAndProportions) {
  Write("stripes.pbm", "P1 7 2 1 0 1 0 1 0 1 1 0 1 0 1 0 1");
  Open("stripes.pbm", [&](QWidget& front) {
    Expect(front, "stripes.pbm 7 × 2 画素");
    const QImage screen = Sheet(front).grab().toImage();
    const QImage stripes = screen.copy(PlaceOf(screen, Qt::black));
    EXPECT_EQ(stripes, QImage(PathOf("stripes.pbm")).convertToFormat(stripes.format()));
  });
  Save("tall.png", {500, 1200});
  Open("tall.png", [](QWidget& front) {
    Expect(front, "tall.png 500 × 1200 画素");
    const QImage screen = Sheet(front).grab().toImage();
    const QRect place = PlaceOf(screen, Qt::blue);
    EXPECT_NEAR(place.width() * 12, place.height() * 5, 12);
    EXPECT_GT(place.height(), screen.height() * 9 / 10);
  });
}

}  // namespace
}  // namespace orreryui
