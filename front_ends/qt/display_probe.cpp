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

// Whether the platform's plug-in is there and loads with all that it needs.
bool PluginLoads(const QString& name) {
  for (const QString& folder : PluginFolders()) {
    for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.so")})) {
      QPluginLoader plugin(file.absoluteFilePath());
      if (HasKey(plugin, name) && plugin.load()) return true;
    }
  }
  return false;
}

// Others end the process where they don't find what they need.
bool CanBeProbed(const QByteArray& name) {
  return name == "xcb" || name.startsWith("wayland") || name == "offscreen" || name == "minimal" ||
         name == "vnc";
}

std::optional<Platform> Probe(const QByteArray& platform) {
  const QByteArray name = platform.split(':').front().trimmed().toLower();
  if (!CanBeProbed(name)) return std::nullopt;
  Platform found{platform, nullptr};
  if (name == "xcb") {
    found.connection = ConnectToXServer();
    if (!found.connection) return std::nullopt;
  }
  if (name.startsWith("wayland") && !WaylandServerAnswers()) return std::nullopt;
  if (!PluginLoads(QString::fromLatin1(name))) return std::nullopt;
  return found;
}

}  // namespace

std::optional<Platform> UsablePlatform() {
  for (const QByteArray& platform : Candidates()) {
    if (auto found = Probe(platform)) return found;
  }
  return std::nullopt;
}

}  // namespace orreryui
