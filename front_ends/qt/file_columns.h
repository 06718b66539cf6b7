// How the lists of Qt's file chooser read: in Japanese, whatever language the host speaks, and with
// room for all that they hold.
#ifndef ORRERYUI_FRONT_ENDS_QT_FILE_COLUMNS_H_
#define ORRERYUI_FRONT_ENDS_QT_FILE_COLUMNS_H_

#include <QFileDialog>
#include <QFileIconProvider>

namespace orreryui {

// The kind of a file, by its extension; Qt would describe its contents in the host's language.
class FileKinds : public QFileIconProvider {
 public:
  QString type(const QFileInfo& file) const override;
};

// Writes sizes and dates as in Japan, and keeps columns and side bar as wide as what stands in
// them, however narrow the user or another program left them. `dialog` shows Qt's own widgets.
void FitFileColumns(QFileDialog& dialog);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_FILE_COLUMNS_H_
