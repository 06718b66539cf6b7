#include "platform/dialogs/root_run.h"

namespace orreryui {

RootRun::~RootRun() {
  for (PageRun* page : pages_) page->Detach();
}

void RootRun::Start(DialogWindow& window) {
  ControlRun::Start(window);
  ModalRun::Gesture([this] {
    FocusFirstControl();
    Initialise();
    const auto is_here = [this] { return FocusNow().run == this; };
    // It may have hidden or disabled that control.
    if (is_here() && Target(Model().At(FocusNow().index).id) < 0) FocusFirstControl();
    if (is_here()) FocusCheckedButton();
  });
}

ControlSession* RootRun::Page(int tab_control, int tab) {
  for (PageRun* page : pages_) {
    if (page->LiesOver(tab_control, tab)) return page;
  }
  return nullptr;
}

void RootRun::Enter() {
  ModalRun::Gesture([this] { PressEnter(); });
}

void RootRun::PressEnter() {
  const ModalRun::Focus focus = FocusNow();
  if (!focus.run || !focus.run->EnterOn(focus.index)) PressDefaultButton();
}

void RootRun::PressDefaultButton() {
  for (int index = 0; index < Model().Count(); ++index) {
    const orreryui::Control& control = Model().At(index);
    if ((control.flags & kDefaultButton) == 0) continue;
    if (Target(control.id) >= 0) Send(control.id, Event::kClick);
    return;
  }
  Send(IDOK, Event::kClick);
}

void RootRun::Escape() {
  ModalRun::Gesture([this] { Send(IDCANCEL, Event::kClick); });
}

void RootRun::RefreshAll() {
  Refresh();
  for (PageRun* page : pages_) page->Refresh();
}

PageRun::PageRun(CDialog& dialog, RootRun& sheet, int tab_control, int tab)
    : ControlRun(dialog, sheet), sheet_(sheet), tab_control_(tab_control), tab_(tab) {
  sheet.AddPage(*this);
}

bool PageRun::IsShown() const {
  const int tabs = sheet_.Model().IndexOf(tab_control_);
  return tabs >= 0 && sheet_.Model().At(tabs).selection == tab_;
}

}  // namespace orreryui
