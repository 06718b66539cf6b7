#include "retrieval/name_page.h"

#include <algorithm>

#include "templates/name_page.h"

namespace orreryui {

using namespace name_page;

std::span<const Message<CDlgGnpfName>> CDlgGnpfName::Messages() {
  static constexpr Message<CDlgGnpfName> kMessages[] = {
      {kMesh, Event::kFocusLost, &CDlgGnpfName::OnLeaveMesh},
      {kAdmin, Event::kSelectionChange, &CDlgGnpfName::OnSelectAdmin},
      {kAdmin, Event::kFocusLost, &CDlgGnpfName::OnLeaveAdmin},
      {kLarge, Event::kSelectionChange, &CDlgGnpfName::OnSelectLarge},
      {kMiddle, Event::kSelectionChange, &CDlgGnpfName::OnSelectMiddle},
      {kSmall, Event::kSelectionChange, &CDlgGnpfName::OnSelectSmall},
      {kWord, Event::kFocusLost, &CDlgGnpfName::OnLeaveWord},
      {kClear, Event::kClick, &CDlgGnpfName::OnClear},
  };
  return kMessages;
}

CDlgGnpfName::CDlgGnpfName()
    : DialogWithMessages(kTemplate, Controls{.mesh = kMesh,
                                             .admin = kAdmin,
                                             .large = kLarge,
                                             .small = kSmall,
                                             .word = kWord,
                                             .large_code = kLargeCode,
                                             .small_code = kSmallCode}) {}

void CDlgGnpfName::OnInitDialog() {
  FillList(kLarge, kPlaceClasses);
  CDlgGnpfConditions::OnInitDialog();
  if (m_nMiddle != -1) SetDlgItemText(kMiddle, m_strMiddle);
}

void CDlgGnpfName::OnSelectLarge() {
  large_ = &kPlaceClasses[GetCurSel(kLarge)];
  TakeLarge(large_->code, large_->name);
  m_nMiddle = -1;
  SetDlgItemText(kMiddleCode, "");
  FillList(kMiddle, large_->middle);
}

void CDlgGnpfName::OnSelectMiddle() {
  const ClassWithSmall& middle = large_->middle.begin()[GetCurSel(kMiddle)];
  m_nMiddle = middle.code;
  m_strMiddle = middle.name;
  m_nSmall = -1;
  ShowCode(kMiddleCode, m_nMiddle);
  SetDlgItemText(kSmallCode, "");
  ListSmall();
}

void CDlgGnpfName::OnClear() {
  CDlgGnpfConditions::OnClear();
  m_nMiddle = -1;
  SetCurSel(kMiddle, -1);
  SetDlgItemText(kMiddleCode, "");
}

const ClassWithSmall* CDlgGnpfName::ClassOfSmall() const {
  if (!large_) return nullptr;
  const auto& middle = large_->middle;
  const auto found = std::ranges::find(middle, m_nMiddle, &ClassWithSmall::code);
  return found == middle.end() ? nullptr : found;
}

}  // namespace orreryui
