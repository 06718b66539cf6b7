#include "front_ends/qt/list_binders.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

#include "front_ends/qt/list_rows.h"
#include "front_ends/qt/text_fit.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

class EvenRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize own = QStyledItemDelegate::sizeHint(option, index);
    return own.expandedTo({0, LineHeight(option.font)});
  }
};

}  // namespace

void KeepRowsEven(QAbstractItemView* view) { view->setItemDelegate(new EvenRows(view)); }

QStringList FirstColumn(const std::vector<std::vector<std::string>>& rows) {
  QStringList texts;
  for (const auto& row : rows) texts << (row.empty() ? QString() : FromUtf8(row.front()));
  return texts;
}

void ShowRows(QListWidget* list, const ControlView& view) {
  const QStringList rows = FirstColumn(view.rows);
  bool same = rows.size() == list->count();
  for (int row = 0; same && row < list->count(); ++row) same = list->item(row)->text() == rows[row];
  if (!same) {
    list->clear();
    list->addItems(rows);
  }
  SelectRow(list, view.selection);
}

void SelectRow(QAbstractItemView* view, int row) {
  const QModelIndex index = view->model()->index(row, 0);
  QItemSelectionModel* selection = view->selectionModel();
  if (index.isValid() && selection->isRowSelected(row) && view->currentIndex().row() == row) return;
  if (!index.isValid()) {
    selection->clear();
    return;
  }
  selection->setCurrentIndex(index,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  // A list that comes to the screen scrolls to its current row by itself.
  if (view->isVisible()) view->scrollTo(index);
}

ListBoxBinder::ListBoxBinder(const BinderPlace& place)
    : ControlBinder(place), list_(new PickingList(place.parent)) {
  BindRows(
      list_, [this](const GestureRunner::Gesture& gesture) { Run(gesture); }, place.id);
}

void ListBoxBinder::ShowState(const ControlView& view) { ShowRows(list_, view); }

ReportListBinder::ReportListBinder(const BinderPlace& place)
    : ControlBinder(place), tree_(new PickingTree(place.parent)) {
  tree_->setRootIsDecorated(false);
  tree_->setUniformRowHeights(true);
  tree_->setAllColumnsShowFocus(true);
  tree_->header()->setSectionsMovable(false);
  tree_->header()->setStretchLastSection(false);
  tree_->setColumnCount(0);
  BindRows(
      tree_, [this](const GestureRunner::Gesture& gesture) { Run(gesture); }, place.id);
}

void ReportListBinder::ShowState(const ControlView& view) {
  ShowColumns(view);
  if (rows_ != view.rows) {
    rows_ = view.rows;
    tree_->clear();
    for (const auto& row : rows_) {
      QStringList texts;
      for (const std::string& text : row) texts << FromUtf8(text);
      tree_->addTopLevelItem(new QTreeWidgetItem(texts));
    }
  }
  SelectRow(tree_, view.selection);
}

void ReportListBinder::ShowColumns(const ControlView& view) {
  std::vector<std::string> titles;
  for (const ReportColumn& column : view.columns) titles.push_back(column.title);
  if (titles == titles_) return;
  titles_ = titles;
  QStringList labels;
  for (const std::string& title : titles_) labels << FromUtf8(title);
  tree_->setColumnCount(int(labels.size()));
  tree_->setHeaderLabels(labels);
  if (scale_.x > 0) Arrange(view, scale_);
}

void ReportListBinder::Arrange(const ControlView& view, const DialogScale& scale) {
  ControlBinder::Arrange(view, scale);
  scale_ = scale;
  for (int column = 0; column < int(view.columns.size()); ++column) {
    tree_->setColumnWidth(column, scale.ColumnToPixels(view.columns[std::size_t(column)].width));
  }
}

}  // namespace orreryui
