#include "front_ends/qt/choosers.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QPushButton>

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

// A file chooser in whose name field wildcards say which files to list, unless a file is named so.
class FileChooser : public QFileDialog {
 public:
  // The request outlives the chooser.
  FileChooser(QWidget* owner, const FileChooserRequest& request)
      : QFileDialog(owner), request_(request) {}

  void accept() override {
    const QStringList chosen = selectedFiles();
    const QFileInfo file(chosen.isEmpty() ? QString() : chosen.front());
    if (HasWildcard(file.fileName()) && !file.exists()) return ListFiles(file);
    if (request_.must_exist && !file.exists()) FindFile(file);
    if (request_.refused) {
      const std::string refused = request_.refused(ToUtf8(file.filePath()));
      if (!refused.empty()) return TellRefusal(*this, refused);
    }
    QFileDialog::accept();
  }

 private:
  // The types of files that the user can choose from stay as they are.
  void ListFiles(const QFileInfo& pattern) {
    if (pattern.dir().exists()) setDirectory(pattern.dir());
    ShowName(pattern.fileName());
    auto* const files = findChild<QFileSystemModel*>();
    if (files != nullptr) files->setNameFilters({pattern.fileName()});
  }

  // A name may lack its extension, and be written in other case.
  void FindFile(const QFileInfo& typed) {
    const QString completed =
        typed.fileName() + QLatin1Char('.') + FromUtf8(request_.default_extension);
    for (const QFileInfo& file : typed.dir().entryInfoList(QDir::Files)) {
      const bool same = file.fileName().compare(typed.fileName(), Qt::CaseInsensitive) == 0;
      const bool longer = file.fileName().compare(completed, Qt::CaseInsensitive) == 0;
      if (same || (longer && typed.suffix().isEmpty())) return ShowName(file.filePath());
    }
  }

  // selectFile leaves the name field alone while it has the focus.
  void ShowName(const QString& name) {
    auto* const field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (field != nullptr) field->setText(name);
  }

  const FileChooserRequest& request_;
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

void LabelInJapanese(QFileDialog& dialog, bool must_exist) {
  dialog.setWindowTitle(must_exist ? QStringLiteral("ファイルを開く")
                                   : QStringLiteral("名前を付けて保存"));
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("場所:"));
  dialog.setLabelText(QFileDialog::FileName, QStringLiteral("ファイル名:"));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("ファイルの種類:"));
  dialog.setLabelText(QFileDialog::Accept,
                      must_exist ? QStringLiteral("開く") : QStringLiteral("保存"));
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("キャンセル"));
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
  FileChooser dialog(owner, request);
  MakeModal(dialog);
  dialog.setAcceptMode(request.must_exist ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  dialog.setFileMode(request.must_exist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  // Whether an existing file is added to or replaced is decided elsewhere.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  // The label alone is shown, which may name the patterns itself.
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(request));
  if (!request.must_exist) dialog.setDefaultSuffix(FromUtf8(request.default_extension));
  LabelInJapanese(dialog, request.must_exist);
  StartAt(dialog, FromUtf8(request.start_name));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return ToUtf8(dialog.selectedFiles().front());
}

std::optional<std::uint32_t> AskColour(QWidget* owner, std::uint32_t start) {
  QColorDialog dialog(ToColor(start), owner);
  MakeModal(dialog);
  dialog.setWindowTitle(QStringLiteral("色の設定"));
  if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("キャンセル"));
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return FromColor(dialog.selectedColor());
}

}  // namespace orreryui
