// The widget of a combo box that drops down.
#ifndef ORRERYUI_FRONT_ENDS_QT_DROP_DOWN_H_
#define ORRERYUI_FRONT_ENDS_QT_DROP_DOWN_H_

#include <QComboBox>

namespace orreryui {

// A combo box with an edit field. It takes the mouse wheel only while it has the focus, so that a
// list that the user scrolls past it changes nothing in it. For a screen reader box, field and list
// have one name, and the text in the field is a value.
class DropDown : public QComboBox {
 public:
  explicit DropDown(QWidget* parent);

  void SetCaption(const QString& caption);

  void showPopup() override;

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void WidenList();

  bool has_even_rows_ = false;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_DROP_DOWN_H_
