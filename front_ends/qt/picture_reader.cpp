#include "front_ends/qt/picture_reader.h"

#include <utility>

namespace orreryui {
namespace {

Picture Unread() { return {{}, {}, QStringLiteral("読み込めません。")}; }

Picture ReadOrComplain(const QString& path, const std::atomic<bool>& stopped) {
  try {
    return ReadPicture(path, stopped);
  } catch (...) {
    return Unread();
  }
}

}  // namespace

PictureReader::PictureReader(std::function<void(const Picture&)> arrived)
    : arrived_(std::move(arrived)) {}

PictureReader::~PictureReader() {
  stopped_ = true;
  if (thread_) thread_->wait();
}

void PictureReader::Read(const QString& path) {
  next_ = path;
  stopped_ = true;
  if (!thread_) Begin();
}

void PictureReader::Begin() {
  if (next_.isEmpty()) return;
  stopped_ = false;
  thread_.reset(QThread::create(
      [this, path = std::exchange(next_, {})] { picture_ = ReadOrComplain(path, stopped_); }));
  connect(thread_.get(), &QThread::finished, this, &PictureReader::Finish);
  thread_->start();
  const bool started = thread_->isRunning() || thread_->isFinished();
  if (started) return;
  thread_.reset();
  arrived_(Unread());
}

void PictureReader::Finish() {
  thread_->wait();
  thread_.reset();
  const Picture picture = std::exchange(picture_, {});
  if (stopped_) return Begin();
  arrived_(picture);
}

}  // namespace orreryui
