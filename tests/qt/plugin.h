// The real plug-in, loaded as the library loads it, and a way to act while a dialog is open.
#ifndef ORRERYUI_TESTS_QT_PLUGIN_H_
#define ORRERYUI_TESTS_QT_PLUGIN_H_

#include <gtest/gtest.h>

#include <QDialog>
#include <QString>
#include <QWidget>
#include <functional>

#include "platform/front_end.h"
#include "tests/qt/fake_session.h"

namespace orreryui {

// What the plug-in's entry returns for `version`.
FrontEnd* LoadFrontEnd(int version = kFrontEndVersion);

// Runs the dialog, and `user` as soon as it waits for the user. The dialog is ended after `user`,
// unless that has happened by then. A test that doesn't come back is ended by a time limit.
void RunWithUser(FakeSession& session, const std::function<void(QDialog& window)>& user);

// Runs `user` on the dialog or box that is in front when the loop next waits.
void ThenInFront(const std::function<void(QWidget& front)>& user);

// The widget of a control, of the given class.
template <class Widget>
Widget& ControlWidget(QWidget& window, int id) {
  auto* const widget = window.findChild<Widget*>(QString::number(id));
  if (widget == nullptr) qFatal("control %d has no widget of this class", id);
  return *widget;
}

// Tests of one dialog.
class OnScreen : public testing::Test {
 protected:
  void Run(const std::function<void(QDialog& window)>& user) { RunWithUser(session, user); }

  // Hands `user` the widget of a control, of the given class.
  template <class Widget, class User>
  void RunAt(int id, User user) {
    Run([&](QDialog& window) { user(ControlWidget<Widget>(window, id)); });
  }

  FakeSession session;
};

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_QT_PLUGIN_H_
