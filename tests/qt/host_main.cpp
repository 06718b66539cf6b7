// A host that has a QApplication of its own.

#include <gtest/gtest.h>

#include <QApplication>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

int main(int argc, char** argv) {
  // Which may have been given screens.
  if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  testing::InitGoogleTest(&argc, argv);
  const int result = [&] {
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
  }();
#ifdef __SANITIZE_ADDRESS__
  // Qt draws with threads that end with the process, and then seem to have lost what they hold.
  __lsan_do_leak_check();
#endif
  return result;
}
