// Plays the steps of a visit while the operation's dialogs run.
#ifndef ORRERYUI_HOST_VISITOR_H_
#define ORRERYUI_HOST_VISITOR_H_

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <deque>

#include "host/operation.h"

namespace orreryui::host {

// Needs an application. Begins with the first events that run after its construction, and stops
// when it is destroyed.
class Visitor : public QObject {
 public:
  // Pictures are called `pictures` with a number and ".png" behind it.
  Visitor(const std::vector<Step>& steps, QString pictures);

  // What went wrong so far, the steps that weren't reached included.
  QStringList Failures() const;
  const QStringList& Pictures() const { return picture_files_; }

 private:
  void PlanNextLook();
  void Look();
  void Act(QWidget& dialog);
  void LeaveStuckDialog(QWidget* dialog);

  std::deque<Step> steps_;
  QString pictures_;
  QStringList failures_;
  QStringList picture_files_;
  QElapsedTimer since_last_step_;
};

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_VISITOR_H_
