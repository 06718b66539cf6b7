#include "front_ends/qt/qt_front_end.h"

#include <QApplication>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QTimer>
#include <climits>

#include "front_ends/qt/application.h"
#include "front_ends/qt/choosers.h"
#include "front_ends/qt/input_block.h"
#include "front_ends/qt/japanese_labels.h"
#include "front_ends/qt/message_box.h"
#include "front_ends/qt/qt_dialog.h"

namespace orreryui {
namespace {

// What `body` returns, unless there is no application or something is thrown.
template <class Answer, class Body>
Answer Guarded(Answer given_up, Body body) {
  try {
    if (!HasApplication()) return given_up;
    const JapaneseLabels labels;
    return body();
  } catch (...) {
    return given_up;
  }
}

}  // namespace

bool QtFrontEnd::RunDialog(DialogSession& session) {
  return Guarded(false, [&] {
    QtDialog dialog(session, innermost_);
    session.Start(dialog);
    if (session.Ended()) return true;
    const QScopedValueRollback<QWidget*> innermost(innermost_, &dialog);
    dialog.RunModally();
    return true;
  });
}

MessageBoxAnswer QtFrontEnd::ShowMessage(const std::string& text) {
  return Guarded(MessageBoxAnswer::kCancel, [&] { return AskWarning(innermost_, text); });
}

std::optional<std::string> QtFrontEnd::ChooseFile(const FileChooserRequest& request) {
  return Guarded(std::optional<std::string>(), [&] { return AskFile(innermost_, request); });
}

std::optional<std::uint32_t> QtFrontEnd::ChooseColour(std::uint32_t start) {
  return Guarded(std::optional<std::uint32_t>(), [&] { return AskColour(innermost_, start); });
}

void QtFrontEnd::Beep() {
  if (HasApplication()) QApplication::beep();
}

void QtFrontEnd::WaitUntil(const std::function<bool()>& done) {
  Guarded(false, [&] {
    constexpr int kInterval = 25;  // milliseconds
    constexpr int kAskAgain = INT_MIN;
    const InputBlock block(innermost_);
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&loop] { loop.exit(kAskAgain); });
    timer.start(kInterval);
    bool is_done = done();
    // A program that quits ends the loop with a code of its own.
    while (!is_done && loop.exec() == kAskAgain) is_done = done();
    return is_done;
  });
}

}  // namespace orreryui
