// Combo boxes: one that drops down, and one whose list is always open.
#ifndef ORRERYUI_FRONT_ENDS_QT_COMBO_BINDERS_H_
#define ORRERYUI_FRONT_ENDS_QT_COMBO_BINDERS_H_

#include "front_ends/qt/control_binder.h"
#include "front_ends/qt/drop_down.h"
#include "front_ends/qt/edit_binders.h"
#include "front_ends/qt/picking_view.h"

namespace orreryui {

class DropDownBinder : public ControlBinder {
 public:
  explicit DropDownBinder(const BinderPlace& place);
  QWidget* widget() const override { return combo_; }
  QSize Needed(const ControlView& view, QSize offered) const override;
  void SetCaption(const QString& caption) override { combo_->SetCaption(caption); }

 protected:
  void ShowState(const ControlView& view) override;

 private:
  void ShowItems(const ControlView& view);

  DropDown* combo_;
  TypedLine line_;
};

// The edit field has the input focus; the arrow keys in it move through the list.
class SimpleComboBinder : public ControlBinder {
 public:
  explicit SimpleComboBinder(const BinderPlace& place);
  QWidget* widget() const override { return frame_; }
  QList<QWidget*> FocusWidgets() const override { return {edit_}; }
  QSize Needed(const ControlView& view, QSize offered) const override;
  void SetCaption(const QString& caption) override;

 protected:
  void ShowState(const ControlView& view) override;

 private:
  QWidget* frame_;
  QLineEdit* edit_;
  PickingList* list_;
  TypedLine line_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_COMBO_BINDERS_H_
