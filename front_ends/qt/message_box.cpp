#include "front_ends/qt/message_box.h"

#include <QMessageBox>
#include <QPushButton>

#include "front_ends/qt/widget_text.h"

namespace orreryui {

MessageBoxAnswer AskWarning(QWidget* owner, const std::string& text) {
  QMessageBox box(owner);
  box.setAttribute(Qt::WA_QuitOnClose, false);
  box.setWindowModality(Qt::ApplicationModal);
  box.setIcon(QMessageBox::Warning);
  box.setTextFormat(Qt::PlainText);
  box.setText(FromLines(text));
  if (owner != nullptr) box.setWindowTitle(owner->windowTitle());
  QPushButton* ok = box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
  QPushButton* cancel = box.addButton(QStringLiteral("キャンセル"), QMessageBox::RejectRole);
  box.setDefaultButton(ok);
  box.setEscapeButton(cancel);
  box.exec();
  return box.clickedButton() == ok ? MessageBoxAnswer::kOk : MessageBoxAnswer::kCancel;
}

}  // namespace orreryui
