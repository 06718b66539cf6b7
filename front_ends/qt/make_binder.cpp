#include "front_ends/qt/make_binder.h"

#include "front_ends/qt/button_binders.h"
#include "front_ends/qt/combo_binders.h"
#include "front_ends/qt/edit_binders.h"
#include "front_ends/qt/list_binders.h"
#include "front_ends/qt/static_binders.h"
#include "front_ends/qt/stay_down_button.h"

namespace orreryui {
namespace {

StayDownButton* MakeStayDown(QWidget* parent, bool starts_map, ButtonGroups& groups) {
  auto* const button = new StayDownButton(parent);
  if (starts_map) groups.map = new ButtonMap(parent);
  if (groups.map != nullptr) groups.map->Add(button);
  return button;
}

QButtonGroup* RadioGroup(QWidget* parent, bool starts, ButtonGroups& groups) {
  if (starts || groups.radio == nullptr) groups.radio = new QButtonGroup(parent);
  return groups.radio;
}

}  // namespace

std::unique_ptr<ControlBinder> MakeBinder(const BinderPlace& place, const ControlView& view,
                                          ButtonGroups& groups) {
  if (view.kind != ControlKind::kPushLikeCheckBox) groups.map = nullptr;
  switch (view.kind) {
    case ControlKind::kPushButton:
      return std::make_unique<PushButtonBinder>(place, new QPushButton(place.parent));
    case ControlKind::kPushLikeCheckBox:
      return std::make_unique<PushButtonBinder>(
          place, MakeStayDown(place.parent, view.starts_group, groups));
    case ControlKind::kSwatch:
      return std::make_unique<SwatchBinder>(place);
    case ControlKind::kRadioButton:
      return std::make_unique<RadioButtonBinder>(
          place, RadioGroup(place.parent, view.starts_group, groups));
    case ControlKind::kCheckBox:
      return std::make_unique<CheckBoxBinder>(place);
    case ControlKind::kEdit:
      return std::make_unique<LineEditBinder>(place);
    case ControlKind::kMultiLineEdit:
      return std::make_unique<TextEditBinder>(place);
    case ControlKind::kGroupBox:
      return std::make_unique<GroupBoxBinder>(place);
    case ControlKind::kComboBox:
      return std::make_unique<DropDownBinder>(place);
    case ControlKind::kSimpleComboBox:
      return std::make_unique<SimpleComboBinder>(place);
    case ControlKind::kListBox:
      return std::make_unique<ListBoxBinder>(place);
    case ControlKind::kReportList:
      return std::make_unique<ReportListBinder>(place);
    case ControlKind::kStatic:
    case ControlKind::kTab:
      break;
  }
  return std::make_unique<StaticBinder>(place);
}

}  // namespace orreryui
