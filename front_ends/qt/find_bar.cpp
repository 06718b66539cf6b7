#include "front_ends/qt/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>

namespace orreryui {

FindBar::FindBar(QWidget* parent)
    : QWidget(parent), line_(new QLineEdit(this)), answer_(new QLabel(this)) {
  hide();
  setAutoFillBackground(true);
  setCursor(Qt::ArrowCursor);
  line_->setPlaceholderText(QStringLiteral("検索"));
  line_->setAccessibleName(QStringLiteral("検索する文字列"));
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(2, 2, 2, 2);
  row->setSpacing(2);
  row->addWidget(line_, 1);
  row->addWidget(answer_);
  AddButton(QStringLiteral("前を検索"), [this] {
    Find(Way::kPrevious);
  })->setArrowType(Qt::UpArrow);
  AddButton(QStringLiteral("次を検索"), [this] { Find(Way::kNext); })->setArrowType(Qt::DownArrow);
  AddButton(QStringLiteral("閉じる"), [this] { on_close(); })->setText(QStringLiteral("×"));
  connect(line_, &QLineEdit::textEdited, this, [this] { Find(Way::kHere); });
}

// Each has a key, so that none needs the focus.
QToolButton* FindBar::AddButton(const QString& name, const std::function<void()>& press) {
  auto* const button = new QToolButton(this);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setToolTip(name);
  button->setAccessibleName(name);
  connect(button, &QToolButton::clicked, this, press);
  layout()->addWidget(button);
  return button;
}

void FindBar::Open() {
  show();
  line_->setFocus(Qt::ShortcutFocusReason);
  line_->selectAll();
}

void FindBar::Find(Way way) {
  const QString wanted = line_->text();
  const bool found = wanted.isEmpty() || on_find(wanted, way);
  answer_->setText(found ? QString() : QStringLiteral("見つかりません"));
  line_->setAccessibleDescription(answer_->text());
}

// Takes all keys: none is meant for the dialog.
void FindBar::keyPressEvent(QKeyEvent* event) {
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Find(shift ? Way::kPrevious : Way::kNext);
    case Qt::Key_Escape:
      return on_close();
    default:
      break;
  }
}

}  // namespace orreryui
