#include "front_ends/qt/make_binder.h"

#include "front_ends/qt/button_binders.h"
#include "front_ends/qt/combo_binders.h"
#include "front_ends/qt/edit_binders.h"
#include "front_ends/qt/list_binders.h"
#include "front_ends/qt/static_binders.h"

namespace orreryui {

std::unique_ptr<ControlBinder> MakeBinder(const BinderPlace& place, ControlKind kind,
                                          QButtonGroup* radio_group) {
  switch (kind) {
    case ControlKind::kPushButton:
    case ControlKind::kPushLikeCheckBox:
      return std::make_unique<PushButtonBinder>(place, kind == ControlKind::kPushLikeCheckBox);
    case ControlKind::kSwatch:
      return std::make_unique<SwatchBinder>(place);
    case ControlKind::kRadioButton:
      return std::make_unique<RadioButtonBinder>(place, radio_group);
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
