#include "front_ends/qt/picture_preview.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>

#include "front_ends/qt/screen_room.h"
#include "front_ends/qt/text_fit.h"

namespace orreryui {
namespace {

// The only file that is selected; empty for a folder.
QString SelectedFile(const QTreeView& rows, const QFileSystemModel& files) {
  const QModelIndexList selected = rows.selectionModel()->selectedRows();
  if (selected.size() != 1 || files.isDir(selected.front())) return {};
  return files.filePath(selected.front());
}

// Where the screen is narrow, list and preview share what there is.
void MakeRoom(QFileDialog& chooser, QSplitter& parts) {
  constexpr int kWidth = 200;  // pixels
  const QSize wider = chooser.size() + QSize(kWidth, 0);
  chooser.resize(wider.boundedTo(RoomFor(chooser)));
  const int side_bar = parts.sizes().front();
  const int rest = chooser.width() - side_bar;
  const int preview = std::min(kWidth, rest / 3);
  parts.setSizes({side_bar, rest - preview, preview});
}

}  // namespace

PicturePreview::PicturePreview(QWidget* parent)
    : QWidget(parent),
      sheet_(new PictureSheet(this)),
      caption_(new QLabel(this)),
      reader_([this](const Picture& picture) { ShowArrived(picture); }) {
  setObjectName(QStringLiteral("preview"));
  caption_->setTextFormat(Qt::PlainText);
  caption_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  caption_->setFixedHeight(2 * LineHeight(caption_->font()));
  caption_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(sheet_);
  column->addWidget(caption_);
}

void PicturePreview::Show(const QString& path) {
  lines_ = {QFileInfo(path).fileName()};
  FitCaption();
  sheet_->ShowText(path.isEmpty() ? QStringLiteral("画像を選ぶと\nここに表示されます。")
                                  : QStringLiteral("読み込んでいます…"));
  reader_.Read(path);
}

void PicturePreview::ShowArrived(const Picture& picture) {
  const QSize size = picture.size;
  if (size.isValid()) {
    lines_ << QStringLiteral("%1 × %2 画素").arg(size.width()).arg(size.height());
    FitCaption();
  }
  if (picture.image.isNull()) return sheet_->ShowText(picture.complaint);
  sheet_->ShowPicture(picture.image, lines_.join(QLatin1Char('\n')));
}

void PicturePreview::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitCaption();
}

// A name that is too long loses its middle.
void PicturePreview::FitCaption() {
  const QString whole = lines_.join(QLatin1Char('\n'));
  QStringList shown;
  for (const QString& line : lines_) {
    shown << caption_->fontMetrics().elidedText(line, Qt::ElideMiddle, width());
  }
  caption_->setText(shown.join(QLatin1Char('\n')));
  const bool fits = shown == lines_;
  caption_->setToolTip(fits ? QString() : whole.toHtmlEscaped());
  caption_->setAccessibleName(fits ? QString() : whole);
}

void AddPicturePreview(QFileDialog& chooser) {
  auto* const parts = chooser.findChild<QSplitter*>(QStringLiteral("splitter"));
  const auto* const rows = chooser.findChild<QTreeView*>(QStringLiteral("treeView"));
  const auto* const files = chooser.findChild<QFileSystemModel*>();
  if (parts == nullptr || rows == nullptr || files == nullptr) return;
  auto* const preview = new PicturePreview(parts);
  parts->setCollapsible(parts->indexOf(preview), false);
  MakeRoom(chooser, *parts);
  const auto show = [=] { preview->Show(SelectedFile(*rows, *files)); };
  QObject::connect(rows->selectionModel(), &QItemSelectionModel::selectionChanged, preview, show);
  show();
}

}  // namespace orreryui
