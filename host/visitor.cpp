#include "host/visitor.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "host/widget_hand.h"

namespace orreryui::host {
namespace {

constexpr int kMillisecondsBetweenLooks = 5;
constexpr qint64 kPatience = 20'000;    // milliseconds until a dialog counts as stuck
constexpr qint64 kLastResort = 30'000;  // milliseconds until the process is given up

}  // namespace

Visitor::Visitor(const std::vector<Step>& steps, QString pictures)
    : steps_(steps.begin(), steps.end()), pictures_(std::move(pictures)) {
  since_last_step_.start();
  PlanNextLook();
}

QStringList Visitor::Failures() const {
  QStringList failures = failures_;
  for (const Step& step : steps_) {
    failures += QString("a step in dialog %1 wasn't reached").arg(step.dialog);
  }
  return failures;
}

// Each look plans the next one before it acts: a step that opens a further dialog returns only when
// that has closed.
void Visitor::PlanNextLook() {
  QTimer::singleShot(kMillisecondsBetweenLooks, this, &Visitor::Look);
}

void Visitor::Look() {
  PlanNextLook();
  QWidget* const dialog = QApplication::activeModalWidget();
  if (since_last_step_.elapsed() > kPatience) {
    LeaveStuckDialog(dialog);
  } else if (dialog && !steps_.empty() &&
             dialog->objectName() == QString::number(steps_.front().dialog)) {
    Act(*dialog);
  }
}

void Visitor::Act(QWidget& dialog) {
  const Step step = steps_.front();
  steps_.pop_front();
  since_last_step_.restart();
  WidgetHand hand(
      dialog, [this](const QString& failure) { failures_ += failure; },
      [this] {
        picture_files_ += QString("%1-%2.png").arg(pictures_).arg(picture_files_.size() + 1);
        return picture_files_.back();
      });
  step.act(hand);
}

void Visitor::LeaveStuckDialog(QWidget* dialog) {
  if (since_last_step_.elapsed() > kLastResort) {
    std::fprintf(stderr, "A dialog can't be left: the tour is given up.\n");
    std::_Exit(EXIT_FAILURE);
  }
  if (!dialog) return;
  failures_ += QString("dialog %1 had to be left by Esc").arg(dialog->objectName());
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(dialog, &escape);
}

}  // namespace orreryui::host
