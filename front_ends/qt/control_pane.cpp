#include "front_ends/qt/control_pane.h"

#include <algorithm>

#include "front_ends/qt/growth.h"
#include "front_ends/qt/tab_binder.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

constexpr double kGrowthStep = 1.02;

bool TakesCaption(ControlKind kind) {
  switch (kind) {
    case ControlKind::kSwatch:
    case ControlKind::kRadioButton:
    case ControlKind::kEdit:
    case ControlKind::kMultiLineEdit:
    case ControlKind::kComboBox:
    case ControlKind::kSimpleComboBox:
    case ControlKind::kListBox:
    case ControlKind::kReportList:
    case ControlKind::kTab:
      return true;
    default:
      return false;
  }
}

bool GivesCaption(ControlKind kind) {
  return kind == ControlKind::kStatic || kind == ControlKind::kGroupBox;
}

}  // namespace

ControlPane::ControlPane(ControlSession& session, PaneFrame& frame, QWidget* parent)
    : QWidget(parent), session_(session), frame_(frame), filter_(*this) {}

void ControlPane::Build() {
  frame_.Quietly([this] {
    const int count = session_.ControlCount();
    controls_.reserve(std::size_t(count));
    for (int index = 0; index < count; ++index) AddControl(index);
    SetCaptions();
  });
}

void ControlPane::AddControl(int index) {
  Shown& shown = controls_.emplace_back();
  shown.view = session_.Control(index);
  const ControlView& view = shown.view;
  const BinderPlace place{*this, this, index, view.id};
  if (view.kind == ControlKind::kTab) {
    shown.binder = std::make_unique<TabBinder>(place, frame_);
  } else {
    shown.binder = MakeBinder(place, view, button_groups_);
  }
  ControlBinder& binder = *shown.binder;
  if (view.id != kNoControlId) binder.widget()->setObjectName(QString::number(view.id));
  const bool breaks_lines = view.kind == ControlKind::kMultiLineEdit;
  for (QWidget* widget : binder.FocusWidgets()) filter_.Watch(widget, index, view.id, breaks_lines);
  // A widget that has a size isn't asked for its own wish when it is shown.
  binder.widget()->resize(1, 1);
  binder.Show(view);
}

void ControlPane::SetCaptions() {
  // A box is named by the fixed text or the frame before it, or else by the window's title; boxes
  // that follow one another share that text.
  QString caption = FromUtf8(session_.Layout().title).simplified();
  for (const auto& [binder, view, arranged] : controls_) {
    if (!view.description.empty()) {
      binder->widget()->setAccessibleDescription(FromUtf8(view.description));
    }
    if (GivesCaption(view.kind) && !view.text.empty()) {
      caption = FromUtf8(view.text).simplified();
    } else if (TakesCaption(view.kind)) {
      binder->SetCaption(caption);
    }
  }
}

DialogScale ControlPane::Grow(DialogScale scale) const {
  bool wider = false;
  bool higher = false;
  for (const auto& [binder, view, arranged] : controls_) {
    if (arranged && scale == scale_) continue;
    const QSize offered = scale.ToPixels(view.place).size();
    const QSize needed = binder->Needed(view, offered);
    wider = wider || needed.width() > offered.width();
    higher = higher || needed.height() > offered.height();
  }
  if (wider) scale.x *= kGrowthStep;
  if (higher) scale.y *= kGrowthStep;
  return scale;
}

DialogScale ControlPane::GrowUpTo(DialogScale scale, const DialogScale& most) const {
  for (DialogScale grown = Grow(scale);
       (grown.x > scale.x && grown.x < most.x) || (grown.y > scale.y && grown.y < most.y);
       grown = Grow(scale)) {
    scale = {std::min(grown.x, most.x), std::min(grown.y, most.y)};
  }
  return scale;
}

const DialogRect* ControlPane::GrowingPlace() const {
  for (const Shown& shown : controls_) {
    if (shown.view.grows) return &shown.view.place;
  }
  return nullptr;
}

void ControlPane::Arrange(const DialogScale& scale, QPoint gain) {
  const bool anew = scale != scale_ || gain != gain_;
  scale_ = scale;
  gain_ = gain;
  for (auto& shown : controls_) {
    if (anew || !shown.arranged) ArrangeControl(shown);
    shown.arranged = true;
  }
}

void ControlPane::ArrangeControl(const Shown& shown) const {
  const DialogRect* const grower = gain_.isNull() ? nullptr : GrowingPlace();
  if (grower == nullptr) return shown.binder->Arrange(shown.view, scale_);
  ControlView view = shown.view;
  view.place = Grown(view.place, *grower, gain_);
  shown.binder->Arrange(view, scale_);
}

QList<QWidget*> ControlPane::FocusWidgets() const {
  QList<QWidget*> widgets;
  for (const Shown& shown : controls_) widgets << shown.binder->FocusWidgets();
  return widgets;
}

QWidget* ControlPane::FocusWidget() const {
  const int focus = session_.Layout().focus;
  for (const auto& [binder, view, arranged] : controls_) {
    if (QWidget* const inner = binder->InnerFocusWidget()) return inner;
    const bool wanted = focus != kNoControlId && binder->id() == focus;
    if (wanted && binder->widget()->isEnabled() && binder->widget()->isVisibleTo(window())) {
      return binder->widget();
    }
  }
  return nullptr;
}

void ControlPane::AfterGesture() {
  frame_.Quietly([this] {
    for (const Shown& shown : controls_) shown.binder->AfterGesture();
  });
}

void ControlPane::Run(int index, const Gesture& gesture) {
  if (frame_.quiet() || frame_.Ended()) return;
  frame_.Guarded([&] {
    gesture(session_);
    if (!frame_.Ended()) ShowAfterGesture(index);
    frame_.GestureDone();
  });
}

void ControlPane::ShowAfterGesture(int index) {
  ShowControl(index);
  if (At(index).view.kind != ControlKind::kRadioButton) return;
  for (int other = 0; other < int(controls_.size()); ++other) {
    if (At(other).view.kind == ControlKind::kRadioButton) ShowControl(other);
  }
}

void ControlPane::ShowControl(int index) {
  Shown& shown = At(index);
  shown.view = session_.Control(index);
  shown.arranged = false;
  frame_.Quietly([&shown] { shown.binder->Show(shown.view); });
}

void ControlPane::Refresh(const std::vector<int>& indices) {
  bool need_other_room = false;
  for (int index : indices) {
    if (index < 0 || index >= int(controls_.size())) continue;
    ShowControl(index);
    need_other_room = need_other_room || At(index).view.kind != ControlKind::kSwatch;
  }
  if (need_other_room) {
    frame_.ContentsChanged();
  } else {
    frame_.FocusChanged();
  }
}

void ControlPane::RefreshLayout() { frame_.FocusChanged(); }

}  // namespace orreryui
