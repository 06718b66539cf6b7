#include "front_ends/qt/file_columns.h"

#include <QFileSystemModel>
#include <QHeaderView>
#include <QListView>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace orreryui {
namespace {

constexpr int kSizeColumn = 1;
constexpr int kDateColumn = 3;

class FigureDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto* const files = qobject_cast<const QFileSystemModel*>(index.model());
    if (files != nullptr && !option->text.isEmpty()) option->text = Figures(*files, index);
  }

 private:
  static QString Figures(const QFileSystemModel& files, const QModelIndex& index) {
    const QLocale japan(QLocale::Japanese, QLocale::Japan);
    if (index.column() == kSizeColumn) return japan.formattedDataSize(files.size(index));
    return japan.toString(files.lastModified(index), QLocale::ShortFormat);
  }
};

void FitColumns(QTreeView& list) {
  for (int column = 0; column < list.header()->count(); ++column) {
    list.resizeColumnToContents(column);
  }
}

}  // namespace

QString FileKinds::type(const QFileInfo& file) const {
  if (file.isRoot()) return QStringLiteral("ドライブ");
  if (file.isDir()) return QStringLiteral("フォルダー");
  return QStringLiteral("%1 ファイル").arg(file.suffix().toUpper()).trimmed();
}

void FitFileColumns(QFileDialog& dialog) {
  auto* const list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  auto* const side = dialog.findChild<QListView*>(QStringLiteral("sidebar"));
  const auto* const files = dialog.findChild<QFileSystemModel*>();
  if (list == nullptr || side == nullptr || files == nullptr) return;
  for (const int column : {kSizeColumn, kDateColumn}) {
    list->setItemDelegateForColumn(column, new FigureDelegate(list));
  }
  const auto fit = [list] { FitColumns(*list); };
  QObject::connect(files, &QFileSystemModel::directoryLoaded, list, fit);
  QObject::connect(files, &QFileSystemModel::layoutChanged, list, fit);
  side->setMinimumWidth(side->sizeHintForColumn(0) + 2 * side->frameWidth());
}

}  // namespace orreryui
