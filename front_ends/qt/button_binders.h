// Push buttons, swatches, radio buttons and check boxes.
#ifndef ORRERYUI_FRONT_ENDS_QT_BUTTON_BINDERS_H_
#define ORRERYUI_FRONT_ENDS_QT_BUTTON_BINDERS_H_

#include <QAbstractButton>
#include <QButtonGroup>
#include <QPushButton>

#include "front_ends/qt/control_binder.h"
#include "front_ends/qt/swatch_button.h"

namespace orreryui {

// What all buttons share: a label, which breaks lines where the button has room for them, and a
// click.
class ButtonBinder : public ControlBinder {
 public:
  QWidget* widget() const override { return button_; }
  QSize Needed(const ControlView& view, QSize offered) const override;
  void Arrange(const ControlView& view, const DialogScale& scale) override;

 protected:
  ButtonBinder(const BinderPlace& place, QAbstractButton* button);

  void ShowState(const ControlView& view) override;

  // The room in pixels that the button takes for itself beside its label.
  virtual QSize Surroundings() const = 0;

 private:
  void ShowLabel();

  QAbstractButton* button_;
  QString label_;
};

class PushButtonBinder : public ButtonBinder {
 public:
  // The button belongs to its parent widget.
  PushButtonBinder(const BinderPlace& place, QPushButton* button);

 protected:
  void ShowState(const ControlView& view) override;
  QSize Surroundings() const override;

 private:
  QPushButton* push_button_;
  bool is_default_ = false;
};

class RadioButtonBinder : public ButtonBinder {
 public:
  RadioButtonBinder(const BinderPlace& place, QButtonGroup* group);
  void SetCaption(const QString& caption) override;

 protected:
  void ShowState(const ControlView& view) override;
  QSize Surroundings() const override;
};

class CheckBoxBinder : public ButtonBinder {
 public:
  explicit CheckBoxBinder(const BinderPlace& place);

 protected:
  QSize Surroundings() const override;
};

class SwatchBinder : public ControlBinder {
 public:
  explicit SwatchBinder(const BinderPlace& place);
  QWidget* widget() const override { return button_; }
  void SetCaption(const QString& caption) override;

 protected:
  void ShowState(const ControlView& view) override;

 private:
  SwatchButton* button_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_BUTTON_BINDERS_H_
