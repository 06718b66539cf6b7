#include "host/sample_folder.h"

#include <orreryui/utf8.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace orreryui::host {
namespace {

// Paths within the data name their folder as the start values do. `folder` takes its place.
bool CopyFile(const QString& from, const QString& to, const QByteArray& folder) {
  QFile original(from);
  QFile copy(to);
  if (!original.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly)) return false;
  const QByteArray content = original.readAll().replace(kDataFolder, folder);
  return copy.write(content) == content.size() && copy.flush();
}

bool CopyTree(const QDir& from, const QDir& to) {
  const QByteArray folder = QByteArray::fromStdString(FromUtf8(to.path().toStdString()).bytes);
  QDirIterator entries(from.path(), QDir::Files, QDirIterator::Subdirectories);
  bool copied = entries.hasNext();
  while (entries.hasNext()) {
    const QString file = entries.next();
    const QString target = to.filePath(from.relativeFilePath(file));
    copied = to.mkpath(QFileInfo(target).path()) && CopyFile(file, target, folder) && copied;
  }
  return copied;
}

// The lines of an album but its comments and its memo, a bar behind each.
std::string PointsOf(const QString& album) {
  QFile file(album);
  std::string points;
  if (!file.open(QIODevice::ReadOnly)) return points;
  for (const QByteArray& line : file.readAll().replace('\r', "").split('\n')) {
    if (line.isEmpty() || line[0] == ';' || line[0] == 'M') continue;
    points += ToUtf8(line.toStdString()) + '|';
  }
  return points;
}

}  // namespace

SampleFolder::SampleFolder() {
  const QDir original(QCoreApplication::applicationDirPath() + "/../share/orreryui/sample-data");
  complete_ = folder_.isValid() && CopyTree(original, QDir(folder_.path()));
}

std::string SampleFolder::AlbumPoints() const {
  const QDir albums(folder_.filePath("album"));
  std::string points;
  for (const QString& name : albums.entryList({"*.alb"}, QDir::Files, QDir::Name)) {
    points += PointsOf(albums.filePath(name));
  }
  return points + "999|";
}

std::string SampleFolder::Filled(const std::string& text) const {
  QString filled = QString::fromStdString(text).replace(kDataFolder, folder_.path());
  if (filled.contains(kAlbumPoints)) {
    filled.replace(kAlbumPoints, QString::fromStdString(AlbumPoints()));
  }
  return filled.toStdString();
}

Values SampleFolder::StartValues(const Operation& operation) const {
  Values values;
  for (const Argument& argument : operation.arguments) {
    values[argument.name] = Filled(argument.start);
  }
  return values;
}

}  // namespace orreryui::host
