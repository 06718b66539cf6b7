// The hand on the widgets of a dialog: mouse and key events, and pictures. Widgets are found by the
// number of their control.
#ifndef ORRERYUI_HOST_WIDGET_HAND_H_
#define ORRERYUI_HOST_WIDGET_HAND_H_

#include <QEvent>
#include <QString>
#include <QWidget>
#include <functional>

#include "host/hand.h"

namespace orreryui::host {

class WidgetHand : public Hand {
 public:
  // `dialog` must outlive the hand. `fail` is told what couldn't be done; `picture` gives the name
  // of the next picture's file.
  WidgetHand(QWidget& dialog, std::function<void(const QString&)> fail,
             std::function<QString()> picture);

  void Click(int control) override;
  void Type(int control, const std::string& text) override;
  void PickFromCombo(int control, int row) override;
  void PickFromList(int control, int row) override;
  void OpenFromList(int control, int row) override;
  void PickTab(int control, int tab) override;
  void GiveUp() override;
  void TakePicture() override;

 private:
  // The widget of a control that a user could reach; otherwise fails and returns null.
  template <typename Widget>
  Widget* Find(int control);

  void ClickRow(int control, int row, QEvent::Type pressed = QEvent::MouseButtonPress);

  QWidget& dialog_;
  std::function<void(const QString&)> fail_;
  std::function<QString()> picture_;
};

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_WIDGET_HAND_H_
