// A tab control: its bar, and the pages that lie below it.
#ifndef ORRERYUI_FRONT_ENDS_QT_TAB_BINDER_H_
#define ORRERYUI_FRONT_ENDS_QT_TAB_BINDER_H_

#include <QFrame>
#include <QKeyCombination>
#include <QTabBar>
#include <map>

#include "front_ends/qt/control_binder.h"
#include "front_ends/qt/control_pane.h"

namespace orreryui {

// A page is started, and its widgets made, when the session has it; of the pages only that of the
// selected tab is shown. Pages are children of the pane that the bar stands on. Ctrl+Tab and Ctrl
// with the page keys go to the neighbouring tab, round about, whatever has the focus in the window.
class TabBinder : public ControlBinder {
 public:
  TabBinder(const BinderPlace& place, PaneFrame& frame);
  QWidget* widget() const override { return bar_; }
  QSize Needed(const ControlView& view, QSize offered) const override;
  void Arrange(const ControlView& view, const DialogScale& scale) override;
  QList<QWidget*> FocusWidgets() const override;
  QWidget* InnerFocusWidget() const override;
  void SetCaption(const QString& caption) override { bar_->setAccessibleName(caption); }
  void AfterGesture() override;

 protected:
  void ShowState(const ControlView& view) override;

 private:
  void StepBy(int step, QKeyCombination key);
  bool AddPages(int tabs);
  void ShowSelectedPage(int tab);

  PaneFrame& frame_;
  QWidget* parent_;
  QTabBar* bar_;
  QFrame* backdrop_;
  std::map<int, ControlPane*> pages_;  // by tab
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_TAB_BINDER_H_
