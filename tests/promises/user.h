// The user of a host that has Qt: acts on each dialog as it opens.
#ifndef ORRERYUI_TESTS_PROMISES_USER_H_
#define ORRERYUI_TESTS_PROMISES_USER_H_

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <utility>

namespace orreryui {

class User {
 public:
  // `act` is called with each modal window that is open, whenever the events run. Needs an
  // application, and lives no longer than that.
  explicit User(std::function<void(QWidget&)> act) {
    QObject::connect(&timer_, &QTimer::timeout, [act = std::move(act)] {
      if (QWidget* const dialog = QApplication::activeModalWidget()) act(*dialog);
    });
    timer_.start(0);
  }

  // Ways to end a dialog.
  static void PressEscape(QWidget& dialog) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
      QApplication::sendEvent(&dialog, &event);
    }
  }
  static void PressConfirm(QWidget& dialog) {
    if (auto* const button = dialog.findChild<QPushButton*>("103")) button->click();
  }

 private:
  QTimer timer_;
};

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_PROMISES_USER_H_
