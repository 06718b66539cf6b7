// List boxes and lists with columns.
#ifndef ORRERYUI_FRONT_ENDS_QT_LIST_BINDERS_H_
#define ORRERYUI_FRONT_ENDS_QT_LIST_BINDERS_H_

#include "front_ends/qt/control_binder.h"
#include "front_ends/qt/picking_view.h"

namespace orreryui {

class ListBoxBinder : public ControlBinder {
 public:
  explicit ListBoxBinder(const BinderPlace& place);
  QWidget* widget() const override { return list_; }
  void SetCaption(const QString& caption) override { list_->setAccessibleName(caption); }

 protected:
  void ShowState(const ControlView& view) override;

 private:
  PickingList* list_;
};

class ReportListBinder : public ControlBinder {
 public:
  explicit ReportListBinder(const BinderPlace& place);
  QWidget* widget() const override { return tree_; }
  void Arrange(const ControlView& view, const DialogScale& scale) override;
  void SetCaption(const QString& caption) override { tree_->setAccessibleName(caption); }

 protected:
  void ShowState(const ControlView& view) override;

 private:
  void ShowColumns(const ControlView& view);

  PickingTree* tree_;
  DialogScale scale_;
  std::vector<std::string> titles_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_LIST_BINDERS_H_
