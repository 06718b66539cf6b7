#include "front_ends/qt/display_probe.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QPluginLoader>

#include "front_ends/qt/display_servers.h"

namespace orreryui {
namespace {

// The platforms that Qt prefers in this session, best first.
QList<QByteArray> Candidates() {
  const QByteArray asked = qgetenv("QT_QPA_PLATFORM");
  if (!asked.isEmpty()) return asked.split(';');
  const bool wayland =
      qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
  const bool gnome = qgetenv("XDG_CURRENT_DESKTOP").toLower().contains("gnome");
  if (!wayland) return {"xcb"};
  return gnome ? QList<QByteArray>{"xcb", "wayland"} : QList<QByteArray>{"wayland", "xcb"};
}

QStringList PluginFolders() {
  QStringList folders;
  const QString extra = qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH");
  if (!extra.isEmpty()) folders << extra;
  for (const QString& path : QCoreApplication::libraryPaths()) {
    folders << path + QLatin1String("/platforms");
  }
  return folders;
}

bool HasKey(const QPluginLoader& plugin, const QString& key) {
  const QJsonArray keys = plugin.metaData()
                              .value(QLatin1String("MetaData"))
                              .toObject()
                              .value(QLatin1String("Keys"))
                              .toArray();
  for (const auto& known : keys) {
    if (known.toString().compare(key, Qt::CaseInsensitive) == 0) return true;
  }
  return false;
}

// What keeps the platform's plug-in from being loaded with all that it needs, or nothing.
QString PluginFault(const QString& name) {
  QString fault =
      QStringLiteral("Qt has no plug-in for it in ") + PluginFolders().join(QLatin1String(", "));
  for (const QString& folder : PluginFolders()) {
    for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.so")})) {
      QPluginLoader plugin(file.absoluteFilePath());
      if (!HasKey(plugin, name)) continue;
      if (plugin.load()) return QString();
      fault = plugin.errorString();
    }
  }
  return fault;
}

// Others end the process where they don't find what they need.
bool CanBeProbed(const QByteArray& name) {
  return name == "xcb" || name.startsWith("wayland") || name == "offscreen" || name == "minimal" ||
         name == "vnc";
}

QString NoConnectionTo(const char* variable) {
  const QString place = qEnvironmentVariable(variable);
  return QStringLiteral("no connection, and %1 is %2")
      .arg(QLatin1String(variable), place.isEmpty() ? QStringLiteral("not set") : place);
}

// What keeps the platform from working, or nothing. A connection that it takes is kept in
// `platform`.
QString Fault(Platform& platform) {
  const QByteArray name = platform.name.split(':').front().trimmed().toLower();
  if (!CanBeProbed(name)) return QStringLiteral("not one that can be tried safely");
  if (name == "xcb") {
    platform.connection = ConnectToXServer();
    if (!platform.connection) return NoConnectionTo("DISPLAY");
  }
  if (name.startsWith("wayland") && !WaylandServerAnswers()) {
    return NoConnectionTo("WAYLAND_DISPLAY");
  }
  return PluginFault(QString::fromLatin1(name));
}

}  // namespace

std::optional<Platform> UsablePlatform(QStringList& findings) {
  for (const QByteArray& name : Candidates()) {
    Platform platform{name, nullptr};
    const QString fault = Fault(platform);
    findings << QStringLiteral("platform %1: %2")
                    .arg(QString::fromLocal8Bit(name),
                         fault.isEmpty() ? QStringLiteral("works") : fault);
    if (fault.isEmpty()) return platform;
  }
  return std::nullopt;
}

}  // namespace orreryui
