#include "host/widget_hand.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QTabBar>
#include <utility>

namespace orreryui::host {
namespace {

// What is pressed is the second click of a double click, or the only one.
void ClickMouse(QWidget& widget, const QPointF& place,
                QEvent::Type pressed = QEvent::MouseButtonPress) {
  const QPointF on_screen = widget.mapToGlobal(place);
  QMouseEvent press(pressed, place, on_screen, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, place, on_screen, Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
  QApplication::sendEvent(&widget, &release);
}

void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QKeyEvent press(QEvent::KeyPress, key, modifiers);
  QApplication::sendEvent(&widget, &press);
  QKeyEvent release(QEvent::KeyRelease, key, modifiers);
  QApplication::sendEvent(&widget, &release);
}

}  // namespace

WidgetHand::WidgetHand(QWidget& dialog, std::function<void(const QString&)> fail,
                       std::function<QString()> picture)
    : dialog_(dialog), fail_(std::move(fail)), picture_(std::move(picture)) {}

template <typename Widget>
Widget* WidgetHand::Find(int control) {
  // The pages of a tab control may have controls of one number.
  for (auto* const widget : dialog_.findChildren<Widget*>(QString::number(control))) {
    if (widget->isVisible() && widget->isEnabled()) return widget;
  }
  fail_(QString("dialog %1 has no control %2 to use").arg(dialog_.objectName()).arg(control));
  return nullptr;
}

void WidgetHand::Click(int control) {
  if (auto* const button = Find<QAbstractButton>(control)) {
    ClickMouse(*button, button->rect().center());
  }
}

// By an input method, as Japanese text is typed.
void WidgetHand::Type(int control, const std::string& text) {
  auto* const edit = Find<QWidget>(control);
  if (!edit) return;
  edit->setFocus(Qt::MouseFocusReason);
  PressKey(*edit, Qt::Key_A, Qt::ControlModifier);
  QInputMethodEvent commit;
  commit.setCommitString(QString::fromStdString(text));
  QApplication::sendEvent(edit, &commit);
}

void WidgetHand::PickFromCombo(int control, int row) {
  auto* const combo = Find<QComboBox>(control);
  if (!combo) return;
  combo->setFocus(Qt::MouseFocusReason);
  combo->showPopup();
  PressKey(*combo->view(), Qt::Key_Home);
  for (int i = 0; i < row; ++i) PressKey(*combo->view(), Qt::Key_Down);
  PressKey(*combo->view(), Qt::Key_Return);
}

void WidgetHand::PickFromList(int control, int row) { ClickRow(control, row); }

void WidgetHand::OpenFromList(int control, int row) {
  ClickRow(control, row);
  ClickRow(control, row, QEvent::MouseButtonDblClick);
}

void WidgetHand::ClickRow(int control, int row, QEvent::Type pressed) {
  auto* const widget = Find<QWidget>(control);
  if (!widget) return;
  auto* list = qobject_cast<QAbstractItemView*>(widget);
  if (!list) list = widget->findChild<QAbstractItemView*>();
  const QModelIndex index = list ? list->model()->index(row, 0) : QModelIndex();
  if (!index.isValid()) return fail_(QString("control %1 has no row %2").arg(control).arg(row));
  list->scrollTo(index);
  ClickMouse(*list->viewport(), list->visualRect(index).center(), pressed);
}

void WidgetHand::PickTab(int control, int tab) {
  if (auto* const bar = Find<QTabBar>(control)) ClickMouse(*bar, bar->tabRect(tab).center());
}

void WidgetHand::GiveUp() { PressKey(dialog_, Qt::Key_Escape); }

void WidgetHand::TakePicture() {
  const QString file = picture_();
  if (!dialog_.grab().save(file)) fail_("can't write the picture " + file);
}

}  // namespace orreryui::host
