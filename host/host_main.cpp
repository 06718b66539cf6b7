// orreryui-host: the sample host with a window, or a tour of the dialogs that needs no display.
#include <QApplication>
#include <cstdio>

#include "host/host_window.h"
#include "host/tour.h"

namespace {

constexpr char kUsage[] =
    "usage: orreryui-host                  shows a window that calls the operations\n"
    "       orreryui-host --tour FOLDER    visits every operation and leaves pictures in FOLDER\n"
    "       orreryui-host --check-display  ends with status 0 if a window could be shown\n";

}  // namespace

int main(int count, char** values) {
  const QString mode = count > 1 ? values[1] : "";
  const bool is_tour = mode == "--tour" && count == 3;
  if (count > 1 && !is_tour && !(mode == "--check-display" && count == 2)) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  if (is_tour && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  const QApplication application(count, values);
  if (is_tour) return orreryui::host::MakeTour(values[2]) ? 0 : 1;
  if (mode == "--check-display") return 0;
  orreryui::host::HostWindow window;
  window.show();
  return QApplication::exec();
}
