#include "host/sample_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>

namespace orreryui::host {
namespace {

// A copy of a file that can't be written is of no use, so the permissions aren't copied.
bool CopyFile(const QString& from, const QString& to) {
  return QFile::copy(from, to) && QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

bool CopyTree(const QDir& from, const QDir& to) {
  QDirIterator entries(from.path(), QDir::Files, QDirIterator::Subdirectories);
  bool copied = entries.hasNext();
  while (entries.hasNext()) {
    const QString file = entries.next();
    const QString target = to.filePath(from.relativeFilePath(file));
    copied = to.mkpath(QFileInfo(target).path()) && CopyFile(file, target) && copied;
  }
  return copied;
}

}  // namespace

SampleFolder::SampleFolder() {
  const QDir original(QCoreApplication::applicationDirPath() + "/../share/orreryui/sample-data");
  complete_ = folder_.isValid() && CopyTree(original, QDir(folder_.path()));
}

std::vector<std::string> SampleFolder::StartValues(const Operation& operation) const {
  std::vector<std::string> values;
  for (const Argument& argument : operation.arguments) {
    const QString start = QString::fromStdString(argument.start);
    values.push_back(QString(start).replace(kDataFolder, folder_.path()).toStdString());
  }
  return values;
}

}  // namespace orreryui::host
