#include "front_ends/qt/chooser_panel.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <QTimer>

#include "front_ends/qt/screen_room.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {

ChooserPanel::ChooserPanel(PanelSession& session, QFileDialog& chooser)
    : session_(session),
      chooser_(chooser),
      scale_(DialogScale::Of(chooser.font())),
      pane_(new ControlPane(session, *this, &chooser)),
      files_(chooser.findChild<QFileSystemModel*>()),
      rows_(chooser.findChild<QTreeView*>(QStringLiteral("treeView"))),
      name_(chooser.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
  session_.Start(*pane_);
  chooser_.setObjectName(QString::number(session_.Layout().number));
  pane_->Build();
  Join();
  OrderTabs();
  Listen();
  ShowLabel();
  QTimer::singleShot(0, this, [this] { Report([this] { session_.Paint(); }); });
}

// Where the screen is low, the chooser's list gives way.
void ChooserPanel::Join() {
  auto* const grid = qobject_cast<QGridLayout*>(chooser_.layout());
  if (grid == nullptr) return;
  const QSize room = RoomFor(chooser_);
  const QMargins margins = grid->contentsMargins();
  const QSize around(margins.left() + margins.right(), grid->minimumSize().height());
  most_ = scale_.MostFor(session_.Layout(), room - around);
  Arrange();
  grid->addWidget(pane_, grid->rowCount(), 0, 1, grid->columnCount());
  chooser_.resize(QSize(chooser_.width(), chooser_.height() + pane_->height()).boundedTo(room));
}

void ChooserPanel::Arrange() {
  scale_ = pane_->GrowUpTo(scale_, most_);
  const DialogLayout layout = session_.Layout();
  const QPoint corner = scale_.ToPixels(layout.width, layout.height);
  pane_->setFixedSize(corner.x(), corner.y());
  Quietly([this] { pane_->Arrange(scale_); });
}

void ChooserPanel::OrderTabs() {
  auto* const buttons = chooser_.findChild<QDialogButtonBox*>();
  QWidget* before = buttons != nullptr ? buttons->button(QDialogButtonBox::Cancel) : nullptr;
  for (QWidget* widget : pane_->FocusWidgets()) {
    if (before != nullptr) QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

// These come behind Qt's own receivers, which were connected when the chooser was made.
void ChooserPanel::Listen() {
  connect(rows_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &ChooserPanel::ReportSelection);
  for (const auto* rows : chooser_.findChildren<QAbstractItemView*>()) {
    if (rows->selectionModel() != rows_->selectionModel()) continue;
    connect(rows, &QAbstractItemView::clicked, this, [this] {
      if (selected_by_name_) ReportSelection();
    });
  }
  connect(files_, &QFileSystemModel::rootPathChanged, this,
          [this] { Report([this] { session_.ChangeFolder(); }); });
  // Qt has labelled the button by what is selected or typed.
  connect(rows_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &ChooserPanel::ShowLabel);
  connect(name_, &QLineEdit::textChanged, this, &ChooserPanel::ShowLabel);
}

// A name that is typed selects its row as well, and so does one that the chooser itself completes.
// A click on that row then changes no selection.
void ChooserPanel::ReportSelection() {
  const QModelIndexList selected = rows_->selectionModel()->selectedRows();
  selected_by_name_ = quiet() || name_->hasFocus();
  if (!selected_by_name_ && selected.size() == 1 && !files_->isDir(selected.front())) {
    Report([&] { session_.SelectFile(ToUtf8(files_->filePath(selected.front()))); });
  }
}

void ChooserPanel::Report(const std::function<void()>& gesture) {
  if (Ended()) return;
  Guarded([&] {
    gesture();
    GestureDone();
  });
}

void ChooserPanel::GestureDone() {
  if (Ended()) {
    chooser_.reject();
  } else {
    pane_->AfterGesture();
  }
}

void ChooserPanel::ShowLabel() {
  const std::string label = session_.AcceptLabel();
  if (!label.empty()) chooser_.setLabelText(QFileDialog::Accept, Literal(FromUtf8(label)));
}

}  // namespace orreryui
