#include "platform/dialogs/panel_run.h"

#include "platform/strings/code_page_932.h"

namespace orreryui {

void PanelRun::Start(DialogWindow& window) {
  ControlRun::Start(window);
  ModalRun::Gesture([this] { Initialise(); });
}

void PanelRun::SelectFile(const std::string& path) {
  ModalRun::Gesture([&] {
    if (!chooser_.TakePath(path)) return;
    chooser_.OnFileNameChange();
  });
}

void PanelRun::ChangeFolder() {
  ModalRun::Gesture([this] { chooser_.OnFolderChange(); });
}

std::string PanelRun::AcceptLabel() const { return ToUtf8(chooser_.accept_label_); }

}  // namespace orreryui
