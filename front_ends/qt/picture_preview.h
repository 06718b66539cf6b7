// The preview of a file chooser: the picture in the file that is selected.
#ifndef ORRERYUI_FRONT_ENDS_QT_PICTURE_PREVIEW_H_
#define ORRERYUI_FRONT_ENDS_QT_PICTURE_PREVIEW_H_

#include <QFileDialog>
#include <QLabel>
#include <QStringList>

#include "front_ends/qt/picture_reader.h"
#include "front_ends/qt/picture_sheet.h"

namespace orreryui {

// The picture, and below it the name of its file and its size in pixels. While it is read, and
// where it can't be shown, a text says so.
class PicturePreview : public QWidget {
 public:
  explicit PicturePreview(QWidget* parent);

  // The empty path stands for no file.
  void Show(const QString& path);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowArrived(const Picture& picture);
  void FitCaption();

  PictureSheet* sheet_;  // the preview owns these
  QLabel* caption_;
  QStringList lines_;  // of the caption
  PictureReader reader_;
};

// Lays a preview beside the list of a chooser, which shows Qt's own widgets.
void AddPicturePreview(QFileDialog& chooser);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_PICTURE_PREVIEW_H_
