// Pictures as they are read to be previewed: whole, but with no more pixels than a preview needs.
#ifndef ORRERYUI_FRONT_ENDS_QT_PICTURE_FILE_H_
#define ORRERYUI_FRONT_ENDS_QT_PICTURE_FILE_H_

#include <QImage>
#include <QSize>
#include <QString>
#include <atomic>

namespace orreryui {

// What became of a file that was read.
struct Picture {
  QImage image;       // scaled down where it is large; null if there is nothing to show
  QSize size;         // of the whole picture, in its own pixels; invalid if it isn't known
  QString complaint;  // why there is nothing to show, in Japanese
};

// Reads the picture, or the first one, of a file in any format of pixels that Qt knows. Memory is
// bounded: what would need too much of it is only complained of. Nothing but a file is opened: no
// pipe and no device. Takes no longer than a moment once another thread has set `stopped`.
Picture ReadPicture(const QString& path, const std::atomic<bool>& stopped);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_PICTURE_FILE_H_
