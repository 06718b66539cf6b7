// Runs tests of widgets, with an application that needs no display.
#include <gtest/gtest.h>

#include <QApplication>

int main(int count, char** values) {
  testing::InitGoogleTest(&count, values);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, values);
  return RUN_ALL_TESTS();
}
