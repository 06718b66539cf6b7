#include "retrieval/facility_page.h"

#include <algorithm>
#include <iterator>

#include "templates/facility_page.h"

namespace orreryui {

using namespace facility_page;

std::span<const Message<CDlgGnpfFacility>> CDlgGnpfFacility::Messages() {
  static constexpr Message<CDlgGnpfFacility> kMessages[] = {
      {kMesh, Event::kFocusLost, &CDlgGnpfFacility::OnLeaveMesh},
      {kAdmin, Event::kSelectionChange, &CDlgGnpfFacility::OnSelectAdmin},
      {kAdmin, Event::kFocusLost, &CDlgGnpfFacility::OnLeaveAdmin},
      {kLarge, Event::kSelectionChange, &CDlgGnpfFacility::OnSelectLarge},
      {kSmall, Event::kSelectionChange, &CDlgGnpfFacility::OnSelectSmall},
      {kWord, Event::kFocusLost, &CDlgGnpfFacility::OnLeaveWord},
      {kClear, Event::kClick, &CDlgGnpfFacility::OnClear},
  };
  return kMessages;
}

CDlgGnpfFacility::CDlgGnpfFacility()
    : DialogWithMessages(kTemplate, Controls{.mesh = kMesh,
                                             .admin = kAdmin,
                                             .large = kLarge,
                                             .small = kSmall,
                                             .word = kWord,
                                             .large_code = kLargeCode,
                                             .small_code = kSmallCode}) {}

void CDlgGnpfFacility::OnInitDialog() {
  FillList(kLarge, kFacilityClasses);
  CDlgGnpfConditions::OnInitDialog();
}

void CDlgGnpfFacility::OnSelectLarge() {
  const ClassWithSmall& large = kFacilityClasses[GetCurSel(kLarge)];
  TakeLarge(large.code, large.name);
  ListSmall();
}

const ClassWithSmall* CDlgGnpfFacility::ClassOfSmall() const {
  const auto* const found = std::ranges::find(kFacilityClasses, m_nLarge, &ClassWithSmall::code);
  return found == std::end(kFacilityClasses) ? nullptr : found;
}

}  // namespace orreryui
