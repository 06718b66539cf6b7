#include "front_ends/qt/button_groups.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

namespace orreryui {
namespace {

bool IsArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

bool CanHaveFocus(const QWidget& widget) { return widget.isEnabled() && widget.isVisible(); }

// The place as it is seen when the way of the arrow is the way to the right.
QRect Turned(const QRect& place, int arrow) {
  switch (arrow) {
    case Qt::Key_Left:
      return {-place.right(), place.y(), place.width(), place.height()};
    case Qt::Key_Down:
      return {place.y(), place.x(), place.height(), place.width()};
    case Qt::Key_Up:
      return {-place.bottom(), place.x(), place.height(), place.width()};
    default:
      return place;
  }
}

// How far `to` lies to the right of `from`, and how much higher or lower; nothing if it doesn't lie
// there. What touches `from` no more than at a corner counts as one such place further.
std::optional<std::pair<int, int>> WayRight(const QRect& from, const QRect& to) {
  const int ahead = to.left() - from.right() - 1;
  const int shared = std::min(from.bottom(), to.bottom()) - std::max(from.top(), to.top()) + 1;
  if (ahead < 0 || shared < 0) return std::nullopt;
  return std::pair(ahead + (shared > 0 ? 0 : from.width()),
                   std::abs(to.center().y() - from.center().y()));
}

// The text as it is compared: forms and widths of letters don't count, nor which kana they are.
QString Folded(const QString& text) {
  constexpr char16_t kFirstKatakana = u'ァ', kLastKatakana = u'ヶ', kFirstHiragana = u'ぁ';
  QString folded = text.normalized(QString::NormalizationForm_KC).toCaseFolded();
  for (QChar& letter : folded) {
    const char16_t code = letter.unicode();
    if (code < kFirstKatakana || code > kLastKatakana) continue;
    letter = QChar(char16_t(code - kFirstKatakana + kFirstHiragana));
  }
  return folded;
}

bool IsTyping(const QKeyEvent& key) {
  constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return !(key.modifiers() & kCommands) && !key.text().isEmpty() && key.text()[0].isPrint() &&
         !key.text()[0].isSpace();
}

}  // namespace

void SetTabStop(const QButtonGroup& group, const QAbstractButton* stop) {
  for (QAbstractButton* button : group.buttons()) {
    button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

ButtonMap::ButtonMap(QObject* parent) : QButtonGroup(parent) {
  setExclusive(false);
  connect(this, &QButtonGroup::buttonToggled, this, [this](QAbstractButton* button, bool checked) {
    if (!checked || stop_->isChecked() || stop_->hasFocus()) return;
    SetTabStop(*this, stop_ = button);
  });
}

void ButtonMap::Add(QAbstractButton* button) {
  addButton(button);
  button->setAttribute(Qt::WA_InputMethodEnabled);
  button->installEventFilter(this);
  if (stop_ == nullptr) stop_ = button;
  button->setFocusPolicy(button == stop_ ? Qt::StrongFocus : Qt::ClickFocus);
}

bool ButtonMap::eventFilter(QObject* watched, QEvent* event) {
  auto& button = static_cast<QAbstractButton&>(*watched);
  switch (event->type()) {
    case QEvent::FocusIn:
      if (stop_ != &button) SetTabStop(*this, stop_ = &button);
      return false;
    case QEvent::KeyPress:
      return TakesKey(button, *static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod: {
      const auto& input = *static_cast<QInputMethodEvent*>(event);
      QToolTip::showText(button.mapToGlobal(QPoint(0, button.height())), input.preeditString(),
                         &button);
      if (!input.commitString().isEmpty()) Search(button, input.commitString());
      return true;
    }
    default:
      return false;
  }
}

bool ButtonMap::TakesKey(QAbstractButton& from, const QKeyEvent& key) {
  if (IsArrow(key.key())) {
    QAbstractButton* const neighbour = Neighbour(from, key.key());
    if (neighbour != nullptr) neighbour->setFocus(Qt::TabFocusReason);
    return true;
  }
  if (!IsTyping(key)) return false;
  Search(from, key.text());
  return true;
}

QAbstractButton* ButtonMap::Neighbour(const QAbstractButton& from, int arrow) const {
  const QRect here = Turned(from.geometry(), arrow);
  QAbstractButton* nearest = nullptr;
  std::pair<int, int> shortest;
  for (QAbstractButton* button : buttons()) {
    const auto way = WayRight(here, Turned(button->geometry(), arrow));
    if (!way || !CanHaveFocus(*button) || (nearest != nullptr && *way >= shortest)) continue;
    nearest = button;
    shortest = *way;
  }
  return nearest;
}

void ButtonMap::Search(QAbstractButton& from, const QString& text) {
  const bool goes_on =
      since_typed_.isValid() && !since_typed_.hasExpired(QApplication::keyboardInputInterval());
  since_typed_.start();
  const qsizetype here = buttons().indexOf(&from);
  const QString beginning = Folded(text);
  typed_ = goes_on ? typed_ + beginning : beginning;
  QAbstractButton* found = Find(typed_, goes_on ? here : here + 1);
  if (found == nullptr) found = Find(typed_ = beginning, here + 1);
  if (found != nullptr) found->setFocus(Qt::TabFocusReason);
}

QAbstractButton* ButtonMap::Find(const QString& beginning, qsizetype first) const {
  const QList<QAbstractButton*> all = buttons();
  for (qsizetype i = 0; i < all.size(); ++i) {
    QAbstractButton* const button = all[(first + i) % all.size()];
    const bool is_called_so = Folded(button->accessibleName()).startsWith(beginning) ||
                              Folded(button->accessibleDescription()).startsWith(beginning);
    if (is_called_so && CanHaveFocus(*button)) return button;
  }
  return nullptr;
}

}  // namespace orreryui
