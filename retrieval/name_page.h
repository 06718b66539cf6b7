// The page on which place names are narrowed down. Their classes have three levels; what is picked
// on one level empties the codes of the levels below it, but not their names.
#ifndef ORRERYUI_RETRIEVAL_NAME_PAGE_H_
#define ORRERYUI_RETRIEVAL_NAME_PAGE_H_

#include "retrieval/conditions_page.h"

namespace orreryui {

class CDlgGnpfName : public DialogWithMessages<CDlgGnpfName, CDlgGnpfConditions> {
 public:
  CDlgGnpfName();

  int m_nMiddle = -1;  // code of the middle class
  CString m_strMiddle;

  static std::span<const Message<CDlgGnpfName>> Messages();

 private:
  void OnInitDialog() override;
  void OnSelectLarge();
  void OnSelectMiddle();
  void OnClear();
  const ClassWithSmall* ClassOfSmall() const override;

  const PlaceClass* large_ = nullptr;  // the large class picked last, whose classes are listed
};

}  // namespace orreryui

#endif  // ORRERYUI_RETRIEVAL_NAME_PAGE_H_
