// Reads pictures while the windows go on.
#ifndef ORRERYUI_FRONT_ENDS_QT_PICTURE_READER_H_
#define ORRERYUI_FRONT_ENDS_QT_PICTURE_READER_H_

#include <QThread>
#include <functional>
#include <memory>

#include "front_ends/qt/picture_file.h"

namespace orreryui {

// Has at most one thread at work. Of several pictures that are asked for, the last one arrives.
class PictureReader : public QObject {
 public:
  // `arrived` is called in the thread that the reader is made in, from its event loop.
  explicit PictureReader(std::function<void(const Picture&)> arrived);

  // Gives up what is being read, which takes a moment.
  ~PictureReader() override;

  // Begins to read the file, or as soon as the one before is given up. The empty path only gives
  // up.
  void Read(const QString& path);

 private:
  void Begin();
  void Finish();

  const std::function<void(const Picture&)> arrived_;
  QString next_;  // what is to be read when the thread is free
  std::unique_ptr<QThread> thread_;
  std::atomic<bool> stopped_ = false;
  Picture picture_;  // the thread's, as long as there is one
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_PICTURE_READER_H_
