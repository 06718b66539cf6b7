// Fixed texts and frames.
#ifndef ORRERYUI_FRONT_ENDS_QT_STATIC_BINDERS_H_
#define ORRERYUI_FRONT_ENDS_QT_STATIC_BINDERS_H_

#include <QGroupBox>
#include <QLabel>

#include "front_ends/qt/control_binder.h"

namespace orreryui {

// A label that may show a text with other line breaks, or a part of it. A screen reader says the
// whole text, and a menu copies it where the label is a control with a number.
class TextLabel : public QLabel {
 public:
  using QLabel::QLabel;

  // To be called when what is shown has been set.
  void SetWhole(const QString& whole);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  QString whole_;
};

// Plain text. Where its rectangle can't hold it the label leaves a part out, and a tool tip shows
// all.
class StaticBinder : public ControlBinder {
 public:
  explicit StaticBinder(const BinderPlace& place);
  QWidget* widget() const override { return label_; }
  QSize Needed(const ControlView& view, QSize offered) const override;
  void Arrange(const ControlView& view, const DialogScale& scale) override;

 protected:
  void ShowState(const ControlView& view) override;

 private:
  TextLabel* label_;
  QString text_;  // all that the label is to show
};

class GroupBoxBinder : public ControlBinder {
 public:
  explicit GroupBoxBinder(const BinderPlace& place);
  QWidget* widget() const override { return box_; }
  QSize Needed(const ControlView& view, QSize offered) const override;

 protected:
  void ShowState(const ControlView& view) override;

 private:
  QGroupBox* box_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_STATIC_BINDERS_H_
