#include "front_ends/qt/button_binders.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QRadioButton>
#include <QStyle>

#include "front_ends/qt/button_groups.h"
#include "front_ends/qt/text_fit.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

QSize IndicatorRoom(const QWidget& widget, QStyle::PixelMetric width, QStyle::PixelMetric spacing) {
  const QStyle& style = *widget.style();
  return {
      style.pixelMetric(width, nullptr, &widget) + style.pixelMetric(spacing, nullptr, &widget) + 2,
      0};
}

// A button that takes clicks on the whole of its rectangle, not on its label alone.
template <class Button>
class WholeButton : public Button {
 public:
  using Button::Button;

 protected:
  bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }
};

// A radio button whose arrow keys go round its group in tab order, and turn on what they reach.
class RadioButton : public WholeButton<QRadioButton> {
 public:
  using WholeButton<QRadioButton>::WholeButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int step = StepOf(event->key());
    if (step == 0) return QRadioButton::keyPressEvent(event);
    const QList<QAbstractButton*> buttons = group()->buttons();
    const qsizetype count = buttons.size();
    for (qsizetype i = 1; i < count; ++i) {
      QAbstractButton* const other = buttons[(buttons.indexOf(this) + step * i + count) % count];
      if (!other->isEnabled() || !other->isVisible()) continue;
      other->setFocus(Qt::TabFocusReason);
      return other->click();
    }
  }

 private:
  static int StepOf(int key) {
    if (key == Qt::Key_Right || key == Qt::Key_Down) return 1;
    return key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 0;
  }
};

}  // namespace

ButtonBinder::ButtonBinder(const BinderPlace& place, QAbstractButton* button)
    : ControlBinder(place), button_(button) {
  QObject::connect(button_, &QAbstractButton::clicked, button_,
                   [this] { Run([this](ControlSession& session) { session.Click(id()); }); });
}

void ButtonBinder::ShowState(const ControlView& view) {
  const QString label = FromUtf8(view.text);
  if (label_ != label) {
    label_ = label;
    button_->setAccessibleName(label_.simplified());
    ShowLabel();
  }
  button_->setChecked(view.checked);
}

QSize ButtonBinder::Needed(const ControlView& view, QSize offered) const {
  const QSize around = Surroundings();
  return NeededSize(FromUtf8(view.text), button_->font(), offered - around) + around;
}

void ButtonBinder::Arrange(const ControlView& view, const DialogScale& scale) {
  ControlBinder::Arrange(view, scale);
  ShowLabel();
}

void ButtonBinder::ShowLabel() {
  const QSize room = button_->size() - Surroundings();
  const bool may_break = room.height() >= 2 * button_->fontMetrics().height();
  button_->setText(Literal(may_break ? BreakLines(label_, button_->font(), room.width()) : label_));
}

PushButtonBinder::PushButtonBinder(const BinderPlace& place, QPushButton* button)
    : ButtonBinder(place, button), push_button_(button) {}

void PushButtonBinder::ShowState(const ControlView& view) {
  ButtonBinder::ShowState(view);
  if (is_default_ == view.is_default) return;
  is_default_ = view.is_default;
  push_button_->setDefault(is_default_);
}

QSize PushButtonBinder::Surroundings() const {
  const int frame =
      push_button_->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, push_button_);
  return {2 * frame + 6, 2 * frame + 2};
}

RadioButtonBinder::RadioButtonBinder(const BinderPlace& place, QButtonGroup* group)
    : ButtonBinder(place, new RadioButton(place.parent)) {
  group->addButton(static_cast<QRadioButton*>(widget()));
}

void RadioButtonBinder::ShowState(const ControlView& view) {
  // An exclusive group can't be told that none of its buttons is on.
  QButtonGroup* group = static_cast<QRadioButton*>(widget())->group();
  group->setExclusive(false);
  ButtonBinder::ShowState(view);
  group->setExclusive(true);
  // The tab key goes to the button that is on, or to the first one.
  const QAbstractButton* const on = group->checkedButton();
  SetTabStop(*group, on != nullptr ? on : group->buttons().constFirst());
}

void RadioButtonBinder::SetCaption(const QString& caption) {
  widget()->setAccessibleDescription(caption);
}

QSize RadioButtonBinder::Surroundings() const {
  return IndicatorRoom(*widget(), QStyle::PM_ExclusiveIndicatorWidth,
                       QStyle::PM_RadioButtonLabelSpacing);
}

CheckBoxBinder::CheckBoxBinder(const BinderPlace& place)
    : ButtonBinder(place, new WholeButton<QCheckBox>(place.parent)) {}

QSize CheckBoxBinder::Surroundings() const {
  return IndicatorRoom(*widget(), QStyle::PM_IndicatorWidth, QStyle::PM_CheckBoxLabelSpacing);
}

SwatchBinder::SwatchBinder(const BinderPlace& place)
    : ControlBinder(place), button_(new SwatchButton(place.parent)) {
  QObject::connect(button_, &QAbstractButton::clicked, button_,
                   [this] { Run([this](ControlSession& session) { session.Click(id()); }); });
}

void SwatchBinder::ShowState(const ControlView& view) {
  if (view.shows_only) button_->OnlyShow();
  button_->ShowSwatch(view.swatch);
}

void SwatchBinder::SetCaption(const QString& caption) { button_->SetCaption(caption); }

}  // namespace orreryui
