#include "front_ends/qt/choosers.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

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

// A file chooser in whose name field wildcards don't name a file: they say which files to list.
class FileChooser : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

  void accept() override {
    const QStringList chosen = selectedFiles();
    const QString name = chosen.isEmpty() ? QString() : QFileInfo(chosen.front()).fileName();
    if (HasWildcard(name)) {
      setNameFilter(name);
    } else {
      QFileDialog::accept();
    }
  }
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

void StartAt(QFileDialog& dialog, const QString& name) {
  if (name.isEmpty()) return;
  const QFileInfo file(name);
  if (file.dir().exists()) dialog.setDirectory(file.dir());
  dialog.selectFile(file.fileName());
}

}  // namespace

std::optional<std::string> AskFile(QWidget* owner, const FileChooserRequest& request) {
  FileChooser dialog(owner);
  MakeModal(dialog);
  dialog.setAcceptMode(request.must_exist ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  dialog.setFileMode(request.must_exist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  // Whether an existing file is added to or replaced is decided elsewhere.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  // The label alone is shown, which may name the patterns itself.
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(request));
  dialog.setDefaultSuffix(FromUtf8(request.default_extension));
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
