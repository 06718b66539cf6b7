// Hosts without an application: the library makes one at the first dialog and keeps it.
#include <QPointer>
#include <clocale>
#include <csignal>
#include <thread>

#include "tests/promises/promise.h"
#include "tests/promises/user.h"

namespace orreryui {
namespace {

// How the user ends the dialogs. The user comes into being with the application, whoever makes it.
std::function<void(QWidget&)> habit = User::PressEscape;

void BringTheUser() {
  static const User* const user = new User([](QWidget& dialog) { habit(dialog); });
  ASSERT_NE(user, nullptr);
}

class LentApplication : public Promise {
 protected:
  void SetUp() override {
    Promise::SetUp();
    UseOffscreen();
    qAddPreRoutine(BringTheUser);
  }
};

TEST_F(LentApplication, IsMadeOnceAndKept) {
  habit = User::PressConfirm;
  EXPECT_EQ(Confirm(), 1);
  const QPointer<QCoreApplication> first = QCoreApplication::instance();
  ASSERT_FALSE(first.isNull());
  habit = User::PressEscape;
  ExpectNoDialog();
  EXPECT_EQ(QCoreApplication::instance(), first.data());
}

TEST_F(LentApplication, LeavesThePlainLocaleAndHandlersAlone) {
  setenv("LC_ALL", "C", 1);
  signal(SIGUSR1, [](int) {});
  ASSERT_NE(setlocale(LC_ALL, "C"), nullptr);
  ExpectNoDialog();
}

TEST_F(LentApplication, LeavesAMixedLocaleAlone) {
  ASSERT_NE(setlocale(LC_CTYPE, "C.UTF-8"), nullptr);
  ExpectNoDialog();
}

TEST_F(LentApplication, StaysWithTheThreadOfTheFirstCall) {
  std::thread(ExpectNoDialog).join();
  ExpectNoDialog();
}

TEST_F(LentApplication, KeepsWhatTheHostSetsMeanwhile) {
  qAddPreRoutine([] { setenv("VARIABLE_OF_THE_HOST", "1", 1); });
  EXPECT_EQ(OnRengeConfirm("1", "2", "3", "4"), -1);
  EXPECT_STREQ(getenv("VARIABLE_OF_THE_HOST"), "1");
}

TEST_F(LentApplication, AThousandTimes) {
  ExpectBounded([] { EXPECT_EQ(OnRengeConfirm("1", "2", "3", "4"), -1); });
}

}  // namespace
}  // namespace orreryui
