// A library that does nothing but link to Qt Widgets: what loading the library is measured against.
#include <QApplication>

extern "C" const void* ControlUse() { return &QApplication::staticMetaObject; }
