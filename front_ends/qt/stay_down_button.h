// A push button that stays down while it is checked, and then has the palette's highlight.
#ifndef ORRERYUI_FRONT_ENDS_QT_STAY_DOWN_BUTTON_H_
#define ORRERYUI_FRONT_ENDS_QT_STAY_DOWN_BUTTON_H_

#include <QPushButton>

namespace orreryui {

// The highlight is made darker or lighter where it would stand out too little from the buttons that
// aren't checked. The focus is a line inside the button.
class StayDownButton : public QPushButton {
 public:
  explicit StayDownButton(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_STAY_DOWN_BUTTON_H_
