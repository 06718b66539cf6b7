#include "platform/dialogs/modal_run.h"

namespace orreryui {
namespace {

thread_local ModalRun* innermost = nullptr;

}  // namespace

ModalRun::ModalRun() : outer_(innermost) { innermost = this; }

ModalRun::~ModalRun() { innermost = outer_; }

void ModalRun::Finish(int code) {
  if (ended_) return;
  ended_ = true;
  result_ = code;
}

bool ModalRun::Begin() {
  if (busy_ || ended_ || innermost != this) return false;
  busy_ = true;
  return true;
}

void ModalRun::GiveUp() {
  busy_ = false;
  ended_ = true;
  result_ = -1;
}

void ModalRun::RefreshInnermost() {
  if (innermost) innermost->RefreshAll();
}

}  // namespace orreryui
