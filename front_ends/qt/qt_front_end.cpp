#include "front_ends/qt/qt_front_end.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include "front_ends/qt/application.h"
#include "front_ends/qt/choosers.h"
#include "front_ends/qt/input_block.h"
#include "front_ends/qt/japanese_labels.h"
#include "front_ends/qt/message_box.h"
#include "front_ends/qt/qt_dialog.h"

namespace orreryui {

bool QtFrontEnd::RunDialog(DialogSession& session) {
  if (!HasApplication()) return false;
  const JapaneseLabels labels;
  QtDialog dialog(session, Innermost());
  session.Start(dialog);
  if (session.Ended()) return true;
  open_.push_back(&dialog);
  dialog.RunModally();
  open_.pop_back();
  return true;
}

MessageBoxAnswer QtFrontEnd::ShowMessage(const std::string& text) {
  if (!HasApplication()) return MessageBoxAnswer::kCancel;
  const JapaneseLabels labels;
  return AskWarning(Innermost(), text);
}

std::optional<std::string> QtFrontEnd::ChooseFile(const FileChooserRequest& request) {
  if (!HasApplication()) return std::nullopt;
  const JapaneseLabels labels;
  return AskFile(Innermost(), request);
}

std::optional<std::uint32_t> QtFrontEnd::ChooseColour(std::uint32_t start) {
  if (!HasApplication()) return std::nullopt;
  const JapaneseLabels labels;
  return AskColour(Innermost(), start);
}

void QtFrontEnd::Beep() {
  if (HasApplication()) QApplication::beep();
}

void QtFrontEnd::WaitUntil(const std::function<bool()>& done) {
  constexpr int kInterval = 25;  // milliseconds
  const InputBlock block;
  QTimer timer;
  timer.start(kInterval);
  while (!done()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace orreryui
