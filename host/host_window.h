// The window of the sample host, which stands in for the map viewer: the operations on the left,
// the arguments and the last result of the chosen one on the right. What an operation hands back is
// passed in at the next call of any operation that takes it. An operation that works with a palette
// shows it as a strip. The points that were registered stand in a list; choosing one passes it in.
#ifndef ORRERYUI_HOST_HOST_WINDOW_H_
#define ORRERYUI_HOST_HOST_WINDOW_H_

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>
#include <vector>

#include "host/operation.h"
#include "host/palette_strip.h"
#include "host/point_list.h"
#include "host/sample_folder.h"

namespace orreryui::host {

class HostWindow : public QWidget {
 public:
  HostWindow();

 private:
  const Operation& Chosen() const;
  void ShowChosen();
  void CallChosen();
  void TakePoint();
  void KeepPoint(const Operation& operation);
  void ShowValues();
  void ShowPalette();
  void OrderTabs();
  void ShowResult(const Operation& operation, const Outcome& outcome);

  SampleFolder data_;
  Values kept_;                      // of the arguments of all operations
  std::vector<QLineEdit*> editors_;  // one an argument

  // Owned by this window, as all its widgets are.
  QListWidget* operations_;
  PointList* points_;
  QLabel* purpose_;
  QFormLayout* arguments_;
  PaletteStrip* strip_;
  QPushButton* call_;
  QLabel* raw_result_;
  QTableWidget* fields_;
};

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_HOST_WINDOW_H_
