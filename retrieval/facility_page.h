// The page on which public facilities are narrowed down. Their classes have two levels: the kind of
// authority or institution, and the office.
#ifndef ORRERYUI_RETRIEVAL_FACILITY_PAGE_H_
#define ORRERYUI_RETRIEVAL_FACILITY_PAGE_H_

#include "retrieval/conditions_page.h"

namespace orreryui {

class CDlgGnpfFacility : public DialogWithMessages<CDlgGnpfFacility, CDlgGnpfConditions> {
 public:
  CDlgGnpfFacility();

  static std::span<const Message<CDlgGnpfFacility>> Messages();

 private:
  void OnInitDialog() override;
  void OnSelectLarge();
  const ClassWithSmall* ClassOfSmall() const override;
};

}  // namespace orreryui

#endif  // ORRERYUI_RETRIEVAL_FACILITY_PAGE_H_
