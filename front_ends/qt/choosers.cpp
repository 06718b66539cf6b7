#include "front_ends/qt/choosers.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "front_ends/qt/chooser_panel.h"
#include "front_ends/qt/file_columns.h"
#include "front_ends/qt/picture_preview.h"
#include "front_ends/qt/refusal.h"
#include "front_ends/qt/swatch_button.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

bool HasWildcard(const QString& name) {
  return name.contains(QLatin1Char('*')) || name.contains(QLatin1Char('?'));
}

void MakeModal(QDialog& dialog) {
  dialog.setAttribute(Qt::WA_QuitOnClose, false);
  dialog.setWindowModality(Qt::ApplicationModal);
}

// Qt's own file chooser, in which each name means the same whether Enter takes it or the button:
// wildcards say which files to list, unless a file is named so, and a name may lack its extension
// and be written in other case.
class FileChooser : public QFileDialog {
 public:
  // The request outlives the chooser.
  FileChooser(QWidget* owner, const FileChooserRequest& request)
      : QFileDialog(owner), request_(request) {}

  // To be called once the chooser is what it will be.
  void AddPanel() {
    if (request_.panel != nullptr) panel_ = std::make_unique<ChooserPanel>(*request_.panel, *this);
  }

  void accept() override {
    try {
      TakeName();
    } catch (...) {
      reject();
    }
  }

 private:
  void TakeName() {
    const QStringList chosen = selectedFiles();
    const QFileInfo typed(chosen.isEmpty() ? QString() : chosen.front());
    if (typed.isDir()) return EnterFolder();
    if (HasWildcard(typed.fileName()) && !typed.exists()) return ListFiles(typed);
    Choose(typed.exists() ? typed : MeantBy(typed));
  }

  void EnterFolder() {
    QFileDialog::accept();
    ShowName(QString());
  }

  // The types of files that the user can choose from stay as they are.
  void ListFiles(const QFileInfo& pattern) {
    if (pattern.dir().exists()) setDirectory(pattern.dir());
    ShowName(pattern.fileName());
    auto* const files = findChild<QFileSystemModel*>();
    if (files != nullptr) files->setNameFilters({pattern.fileName()});
  }

  void Choose(const QFileInfo& file) {
    if (request_.must_exist && !file.exists()) return TellMissing(file.filePath());
    if (request_.refused) {
      const std::string refused = request_.refused(ToUtf8(file.filePath()));
      if (!refused.empty()) return TellRefusal(*this, refused);
    }
    ShowName(file.filePath());
    QFileDialog::accept();
  }

  QFileInfo MeantBy(const QFileInfo& typed) const {
    const QString extension = FromUtf8(request_.default_extension);
    const bool complete = extension.isEmpty() || !typed.suffix().isEmpty();
    const QString name =
        complete ? typed.fileName() : typed.fileName() + QLatin1Char('.') + extension;
    for (const QFileInfo& file : typed.dir().entryInfoList(QDir::Files)) {
      const bool same = file.fileName().compare(typed.fileName(), Qt::CaseInsensitive) == 0;
      if (same || file.fileName().compare(name, Qt::CaseInsensitive) == 0) return file;
    }
    return QFileInfo(typed.dir(), name);
  }

  void TellMissing(const QString& path) {
    QMessageBox box(
        QMessageBox::Warning, windowTitle(),
        QStringLiteral("%1\nファイルがありません。\nファイル名を確かめてください。").arg(path),
        QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    MakeModal(box);
    box.exec();
  }

  // selectFile leaves the name field alone while it has the focus.
  void ShowName(const QString& name) {
    auto* const field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (field == nullptr) return;
    if (panel_) return panel_->Quietly([&] { field->setText(name); });
    field->setText(name);
  }

  const FileChooserRequest& request_;
  std::unique_ptr<ChooserPanel> panel_;
};

QStringList NameFilters(const FileChooserRequest& request) {
  QStringList filters;
  for (const FileFilter& filter : request.filters) {
    QStringList patterns;
    for (const std::string& pattern : filter.patterns) patterns << FromUtf8(pattern);
    filters << QStringLiteral("%1 (%2)").arg(FromUtf8(filter.label),
                                             patterns.join(QLatin1Char(' ')));
  }
  return filters;
}

// A name without a folder leaves the chooser in the folder where the last file was chosen.
void StartAt(QFileDialog& dialog, const QString& name) {
  if (name.isEmpty()) return;
  const QFileInfo file(name);
  if (file.fileName() != name && file.dir().exists()) dialog.setDirectory(file.dir());
  dialog.selectFile(file.fileName());
}

}  // namespace

std::optional<std::string> AskFile(QWidget* owner, const FileChooserRequest& request) {
  FileKinds kinds;
  FileChooser dialog(owner, request);
  MakeModal(dialog);
  // The desktop's chooser would close before a name can be refused or completed.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  // The button would stay dark for a name that is still to be completed if files had to exist.
  dialog.setFileMode(QFileDialog::AnyFile);
  // The label alone is shown, which may name the patterns itself.
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(request));
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("キャンセル"));
  dialog.setIconProvider(&kinds);
  FitFileColumns(dialog);
  StartAt(dialog, FromUtf8(request.start_name));
  if (request.preview_pictures) AddPicturePreview(dialog);
  dialog.AddPanel();
  if (request.panel != nullptr && request.panel->Ended()) return std::nullopt;
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return ToUtf8(dialog.selectedFiles().front());
}

std::optional<std::uint32_t> AskColour(QWidget* owner, std::uint32_t start) {
  QColorDialog dialog(ToQColor(start), owner);
  MakeModal(dialog);
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  dialog.setWindowTitle(QStringLiteral("色の設定"));
  if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("キャンセル"));
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return FromQColor(dialog.selectedColor());
}

}  // namespace orreryui
