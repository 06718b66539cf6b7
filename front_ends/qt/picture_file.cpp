#include "front_ends/qt/picture_file.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace orreryui {
namespace {

// Larger than a preview is on any screen, and small enough to be scaled whenever it is painted.
constexpr int kMostSide = 1600;

// In pixels. What a format needs that can be read scaled down depends on the file; the others hold
// the whole picture in memory, with four bytes a pixel.
constexpr qint64 kMostScaled = 128 << 20;
constexpr qint64 kMostWhole = 32 << 20;

// In pixels or bytes. What is smaller is read within half a second.
constexpr qint64 kLarge = 16 << 20;

// Can be made to end early.
class StoppableFile : public QFile {
 public:
  using QFile::QFile;

  void StopOnceSet(const std::atomic<bool>& flag) { flag_ = &flag; }

 protected:
  qint64 readData(char* data, qint64 most) override {
    return flag_ != nullptr && *flag_ ? -1 : QFile::readData(data, most);
  }

 private:
  const std::atomic<bool>* flag_ = nullptr;
};

Picture Complain(const QString& complaint, QSize size = {}) { return {{}, size, complaint}; }

// A drawing takes any time to be painted, and can bring in other files.
bool IsDrawing(const QByteArray& format) { return format.startsWith("svg") || format == "pdf"; }

qint64 PixelsOf(QSize size) { return qint64(size.width()) * size.height(); }

bool IsTooLarge(const QImageReader& reader) {
  const bool scales = reader.supportsOption(QImageIOHandler::ScaledSize);
  return PixelsOf(reader.size()) > (scales ? kMostScaled : kMostWhole);
}

// One picture's sides can differ so much that the shorter one would vanish.
QSize ScaledDown(QSize size) {
  if (size.width() <= kMostSide && size.height() <= kMostSide) return size;
  return size.scaled(kMostSide, kMostSide, Qt::KeepAspectRatio).expandedTo({1, 1});
}

Picture Decode(QImageReader& reader) {
  reader.setAutoTransform(true);
  const QSize stored = reader.size();
  const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
  const QSize size = turned ? stored.transposed() : stored;
  const QString too_large = QStringLiteral("大きすぎるため\n表示できません。");
  const QString broken = QStringLiteral("壊れているため\n表示できません。");
  if (stored.isEmpty()) return Complain(broken);
  if (IsTooLarge(reader)) return Complain(too_large, size);
  reader.setScaledSize(ScaledDown(stored));
  const QImage image = reader.read();
  if (!image.isNull()) return {image, size, {}};
  // Some files need more than others of their format, which Qt refuses.
  return Complain(PixelsOf(size) > kMostWhole ? too_large : broken, size);
}

}  // namespace

Picture ReadPicture(const QString& path, const std::atomic<bool>& stopped) {
  const QString no_picture = QStringLiteral("表示できる画像では\nありません。");
  const QFileInfo info(path);
  // Files that the system makes up while they are read say that they are empty.
  if (!info.isFile() || info.size() == 0) return Complain(no_picture);
  StoppableFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return Complain(QStringLiteral("ファイルを\n開けません。"));
  }
  // Qt complains of a file that ends early on standard error, as of a broken one.
  if (info.size() > kLarge) file.StopOnceSet(stopped);
  QImageReader reader(&file);
  if (!reader.canRead() || IsDrawing(reader.format())) return Complain(no_picture);
  if (PixelsOf(reader.size()) > kLarge) file.StopOnceSet(stopped);
  return Decode(reader);
}

}  // namespace orreryui
