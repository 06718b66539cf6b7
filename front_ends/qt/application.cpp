#include "front_ends/qt/application.h"

#include <link.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QApplication>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QThread>
#include <QTranslator>
#include <QVersionNumber>
#include <array>
#include <string_view>

#include "front_ends/qt/display_probe.h"
#include "front_ends/qt/display_servers.h"
#include "front_ends/qt/process_state.h"

namespace orreryui {
namespace {

int NoteForeignQt(dl_phdr_info* info, std::size_t, void* found) {
  const std::string_view path = info->dlpi_name != nullptr ? info->dlpi_name : "";
  const std::string_view name = path.substr(path.rfind('/') + 1);
  for (std::string_view foreign : {"libQtCore.so", "libQt4Core", "libQt5Core"}) {
    if (name.substr(0, foreign.size()) != foreign) continue;
    *static_cast<QString*>(found) = QString::fromLocal8Bit(path.data(), qsizetype(path.size()));
  }
  return 0;
}

// Whether the process holds the Qt that the plug-in is made for and no other: two Qts in one
// process share names of symbols and end in a crash.
bool QtFits(QStringList& findings) {
  const QVersionNumber built(QT_VERSION_MAJOR, QT_VERSION_MINOR, QT_VERSION_PATCH);
  const QVersionNumber here = QLibraryInfo::version();
  QString foreign;
  dl_iterate_phdr(NoteForeignQt, &foreign);
  findings << QStringLiteral("Qt: %1, and the plug-in was built with %2")
                  .arg(here.toString(), built.toString());
  if (!foreign.isEmpty()) findings << QStringLiteral("another Qt is loaded: ") + foreign;
  return foreign.isEmpty() && here >= built;
}

// Qt ends the process, or shows windows that stay black, where it runs out of file descriptors.
bool HasFreeDescriptors() {
  std::array<int, 8> taken{};
  for (int& one : taken) one = eventfd(0, EFD_CLOEXEC);
  const bool enough = taken.back() >= 0;
  for (int one : taken) close(one);
  return enough;
}

void MakeApplication(const QByteArray& platform) {
  // Qt keeps references to these, and so must they stay.
  static int argument_count = 3;
  static char name[] = "orreryui";
  static char option[] = "-platform";
  static QByteArray value = platform;
  static char* arguments[] = {name, option, value.data(), nullptr};

  const ProcessState state;
  auto* application = new QApplication(argument_count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  // The font library reads its language once, when it first looks for a glyph.
  QFontMetrics(QApplication::font()).horizontalAdvance(QStringLiteral("直"));
  auto* const labels = new QTranslator(application);
  if (labels->load(QStringLiteral("qtbase_ja"),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(labels);
  }
}

// Qt ends the process when it next looks at a connection that has broken.
bool ConnectionHolds() {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  // Other platforms that have this interface have no connection.
  xcb_connection_t* const connection = x11 != nullptr ? x11->connection() : nullptr;
  return connection == nullptr || XConnectionHolds(connection);
}

}  // namespace

bool HasApplication() {
  QCoreApplication* const application = QCoreApplication::instance();
  return qobject_cast<QApplication*>(application) != nullptr &&
         application->thread() == QThread::currentThread() && ConnectionHolds();
}

bool FindOrMakeApplication(QStringList& findings) {
  static bool found_before = false;
  if (!found_before && !QtFits(findings)) return false;
  found_before = true;
  if (QCoreApplication::instance() != nullptr) return HasApplication();
  if (!HasFreeDescriptors()) {
    findings << QStringLiteral("file descriptors: too few are left");
    return false;
  }
  const std::optional<Platform> platform = UsablePlatform(findings);
  if (!platform) return false;
  MakeApplication(platform->name);
  return true;
}

}  // namespace orreryui
