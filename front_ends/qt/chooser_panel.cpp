#include "front_ends/qt/chooser_panel.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <QTimer>

#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

constexpr double kMostGrowth = 1.6;

}  // namespace

ChooserPanel::ChooserPanel(PanelSession& session, QFileDialog& chooser)
    : session_(session),
      chooser_(chooser),
      pane_(new ControlPane(session, *this, &chooser)),
      files_(chooser.findChild<QFileSystemModel*>()),
      rows_(chooser.findChild<QTreeView*>(QStringLiteral("treeView"))),
      name_(chooser.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
  session_.Start(*pane_);
  chooser_.setObjectName(QString::number(session_.Layout().number));
  pane_->Build();
  Arrange();
  auto* const grid = qobject_cast<QGridLayout*>(chooser_.layout());
  if (grid != nullptr) grid->addWidget(pane_, grid->rowCount(), 0, 1, grid->columnCount());
  chooser_.resize(chooser_.width(), chooser_.height() + pane_->height());
  OrderTabs();
  Listen();
  ShowLabel();
  QTimer::singleShot(0, this, [this] { Report([this] { session_.Paint(); }); });
}

void ChooserPanel::Arrange() {
  const DialogScale font = DialogScale::Of(chooser_.font());
  const DialogScale scale = pane_->GrowUpTo(font, {font.x * kMostGrowth, font.y * kMostGrowth});
  const DialogLayout layout = session_.Layout();
  const QPoint corner = scale.ToPixels(layout.width, layout.height);
  pane_->setFixedSize(corner.x(), corner.y());
  Quietly([&] { pane_->Arrange(scale); });
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
  connect(files_, &QFileSystemModel::rootPathChanged, this,
          [this] { Report([this] { session_.ChangeFolder(); }); });
  // Qt has labelled the button by what is selected or typed.
  connect(rows_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &ChooserPanel::ShowLabel);
  connect(name_, &QLineEdit::textChanged, this, &ChooserPanel::ShowLabel);
}

// A name that is typed selects its row as well, and so does one that the chooser itself completes.
void ChooserPanel::ReportSelection() {
  const QModelIndexList selected = rows_->selectionModel()->selectedRows();
  const bool by_name = quiet() || name_->hasFocus();
  if (!by_name && selected.size() == 1 && !files_->isDir(selected.front())) {
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
  if (!label.empty()) chooser_.setLabelText(QFileDialog::Accept, FromUtf8(label));
}

}  // namespace orreryui
