#include "tests/qt/plugin.h"

#include <dlfcn.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

namespace orreryui {

FrontEnd* LoadFrontEnd(int version) {
  void* const library = dlopen(ORRERYUI_TEST_PLUGIN, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) qFatal("%s", dlerror());
  auto* const entry = reinterpret_cast<FrontEndFunction*>(dlsym(library, kFrontEndSymbol));
  return entry(version);
}

void ThenInFront(const std::function<void(QWidget&)>& user) {
  QTimer::singleShot(0, [user] {
    QWidget* const front = QApplication::activeModalWidget();
    if (front == nullptr || !QTest::qWaitForWindowActive(front)) qFatal("no dialog is in front");
    user(*front);
  });
}

void RunWithUser(FakeSession& session, const std::function<void(QDialog&)>& user) {
  ThenInFront([&](QWidget& front) {
    session.Take();
    user(static_cast<QDialog&>(front));
    if (session.ended) return;
    session.handler = [&](const std::string&) { session.ended = true; };
    front.close();
  });
  LoadFrontEnd()->RunDialog(session);
}

}  // namespace orreryui
