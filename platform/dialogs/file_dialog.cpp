#include "platform/dialogs/file_dialog.h"

#include <utility>

#include "platform/dialogs/front_end_loader.h"
#include "platform/dialogs/panel_run.h"
#include "platform/system/path.h"

namespace orreryui {

CFileDialog::CFileDialog(const DialogTemplate& panel, std::vector<FileFilter> types)
    : CDialog(panel), types_(std::move(types)) {}

int CFileDialog::DoModal() {
  FrontEnd* const front_end = CurrentFrontEnd();
  if (!front_end) return -1;
  ModalRun::RefreshInnermost();
  path_ = accept_label_ = CString();
  PanelRun run(*this);
  FileChooserRequest request;
  request.filters = types_;
  request.refused = RefusedInPath;
  request.panel = &run;
  const auto chosen = front_end->ChooseFile(request);
  if (run.Ended()) return -1;
  return chosen && TakePath(*chosen) ? IDOK : IDCANCEL;
}

bool CFileDialog::TakePath(const std::string& path) {
  const auto taken = PathFromNative(path);
  if (taken) path_ = taken->c_str();
  return taken.has_value();
}

void CFileDialog::SetAcceptLabel(const char* label) {
  accept_label_ = label;
  model_.Touch();
}

}  // namespace orreryui
