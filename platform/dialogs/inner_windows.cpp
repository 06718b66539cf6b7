#include "platform/dialogs/inner_windows.h"

#include <chrono>
#include <thread>

#include "platform/dialogs/dialog_template.h"
#include "platform/dialogs/front_end_loader.h"
#include "platform/dialogs/modal_run.h"
#include "platform/strings/code_page_932.h"

namespace orreryui {
namespace {

// The front end, with all that the handler has changed so far on the screen.
FrontEnd* RefreshedFrontEnd() {
  ModalRun::RefreshInnermost();
  return CurrentFrontEnd();
}

}  // namespace

int AfxMessageBox(const char* text) {
  FrontEnd* const front_end = RefreshedFrontEnd();
  if (!front_end) return IDCANCEL;
  return front_end->ShowMessage(ToUtf8(text)) == MessageBoxAnswer::kOk ? IDOK : IDCANCEL;
}

std::optional<std::uint32_t> ChooseColour(std::uint32_t start) {
  FrontEnd* const front_end = RefreshedFrontEnd();
  return front_end ? front_end->ChooseColour(start) : std::nullopt;
}

std::optional<std::string> ChooseFile(const FileChooserRequest& request) {
  FrontEnd* const front_end = RefreshedFrontEnd();
  return front_end ? front_end->ChooseFile(request) : std::nullopt;
}

void MessageBeep() {
  if (FrontEnd* const front_end = RefreshedFrontEnd()) front_end->Beep();
}

void WaitUntil(const std::function<bool()>& done) {
  if (FrontEnd* const front_end = RefreshedFrontEnd()) return front_end->WaitUntil(done);
  while (!done()) std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

}  // namespace orreryui
