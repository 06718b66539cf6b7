// A host that has a QApplication of its own.

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // Which may have been given screens.
  if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
