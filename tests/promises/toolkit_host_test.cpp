// Hosts that use Qt themselves, and what they may rely on: the library uses their application and
// leaves its loop, its life and its settings to them.
#include <QPointer>
#include <QWidget>
#include <thread>

#include "tests/promises/promise.h"
#include "tests/promises/user.h"

namespace orreryui {
namespace {

// What a host's own main() has.
int count = 1;
char name[] = "host";
char* values[] = {name, nullptr};

class ToolkitHost : public Promise {
 protected:
  void SetUp() override {
    Promise::SetUp();
    UseOffscreen();
  }

  // Runs the host's loop until everything that is due has been seen to.
  static int RunLoop() {
    QTimer last;
    int rounds = 0;
    QObject::connect(&last, &QTimer::timeout, [&rounds] {
      if (++rounds == 50) QCoreApplication::exit(kLoopRan);
    });
    last.start(0);
    return QCoreApplication::exec();
  }

  static constexpr int kLoopRan = 7;
};

TEST_F(ToolkitHost, KeepsItsApplicationItsLoopAndItsWindow) {
  QApplication application(count, values);
  const QPointer<QCoreApplication> life = &application;
  {
    const User user(User::PressEscape);
    ExpectNoDialog();
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
    QTimer::singleShot(0, ExpectNoDialog);
    EXPECT_EQ(RunLoop(), kLoopRan);
  }
  QWidget window;
  window.show();
  {
    const User user(User::PressConfirm);
    EXPECT_EQ(Confirm(), 1);
  }
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(window.isEnabled());
  EXPECT_EQ(QCoreApplication::instance(), life.data());
  EXPECT_TRUE(QGuiApplication::quitOnLastWindowClosed());
  QTimer::singleShot(0, &window, &QWidget::close);
  EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(ToolkitHost, CallsWhileADialogIsOpen) {
  QApplication application(count, values);
  const User user([](QWidget& dialog) {
    std::thread(ExpectNoDialog).join();
    ExpectNoDialog();
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    User::PressConfirm(dialog);
  });
  EXPECT_EQ(Confirm(), 1);
}

TEST_F(ToolkitHost, WithAnApplicationThatHasNoWindows) {
  const QCoreApplication application(count, values);
  ExpectNoDialog();
}

}  // namespace
}  // namespace orreryui
