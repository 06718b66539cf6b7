// The run of a panel that a dialog has joined to a file chooser. The chooser's end stays its own.
#ifndef ORRERYUI_PLATFORM_DIALOGS_PANEL_RUN_H_
#define ORRERYUI_PLATFORM_DIALOGS_PANEL_RUN_H_

#include <string>

#include "platform/dialogs/control_run.h"
#include "platform/dialogs/file_dialog.h"

namespace orreryui {

class PanelRun final : private ModalRun, public ControlRun, public PanelSession {
 public:
  explicit PanelRun(CFileDialog& dialog) : ControlRun(dialog, *this), chooser_(dialog) {}

  void Start(DialogWindow& window) override;
  void End(int) override {}
  void SelectFile(const std::string& path) override;
  void ChangeFolder() override;
  std::string AcceptLabel() const override;

 private:
  void RefreshAll() override { Refresh(); }

  CFileDialog& chooser_;
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_PANEL_RUN_H_
