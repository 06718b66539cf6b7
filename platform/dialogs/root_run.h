// The run of a dialog with a window of its own, and its pages.
#ifndef ORRERYUI_PLATFORM_DIALOGS_ROOT_RUN_H_
#define ORRERYUI_PLATFORM_DIALOGS_ROOT_RUN_H_

#include <vector>

#include "platform/dialogs/control_run.h"

namespace orreryui {

class PageRun;

class RootRun final : private ModalRun, public ControlRun, public DialogSession {
 public:
  explicit RootRun(CDialog& dialog) : ControlRun(dialog, *this) {}
  ~RootRun() override;

  using ModalRun::RefreshInnermost;
  using ModalRun::Result;

  void Start(DialogWindow& window) override;
  ControlSession* Page(int tab_control, int tab) override;
  void Enter() override;
  void Escape() override;

  // A page that lives as long as this run. It is not owned.
  void AddPage(PageRun& page) { pages_.push_back(&page); }

 private:
  friend class PageRun;

  void RefreshAll() override;
  void PressEnter();
  void PressDefaultButton();

  std::vector<PageRun*> pages_;
};

// The run of a dialog that lies over one tab of a root.
class PageRun final : public ControlRun {
 public:
  PageRun(CDialog& dialog, RootRun& sheet, int tab_control, int tab);

  bool LiesOver(int tab_control, int tab) const {
    return tab_control_ == tab_control && tab_ == tab;
  }

 private:
  bool IsShown() const override;  // while its tab is selected

  const RootRun& sheet_;
  const int tab_control_;
  const int tab_;
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_ROOT_RUN_H_
