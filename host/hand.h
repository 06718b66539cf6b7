// The hand of the tour: acts on the widgets of one dialog by mouse and key events, and takes
// pictures of it. Widgets are found by the number of their control.
#ifndef ORRERYUI_HOST_HAND_H_
#define ORRERYUI_HOST_HAND_H_

#include <QString>
#include <QWidget>
#include <functional>

namespace orreryui::host {

class Hand {
 public:
  // `dialog` must outlive the hand. `fail` is told what couldn't be done; `picture` gives the name
  // of the next picture's file.
  Hand(QWidget& dialog, std::function<void(const QString&)> fail, std::function<QString()> picture);

  void Click(int control);                      // a button of any kind
  void Type(int control, const QString& text);  // instead of the text of an edit box
  void PickFromCombo(int control, int row);
  void PickFromList(int control, int row);  // a list box, or a combo box that is always open
  void TakePicture();

 private:
  // The widget of a control that a user could reach; otherwise fails and returns null.
  template <typename Widget>
  Widget* Find(int control);

  QWidget& dialog_;
  std::function<void(const QString&)> fail_;
  std::function<QString()> picture_;
};

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_HAND_H_
