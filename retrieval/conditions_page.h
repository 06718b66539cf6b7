// What the two pages of the retrieval sheet have in common on which conditions are set: a mesh
// code, a prefecture, a large and a small class, and a text that a name must contain.
//
// -1 and the empty text mean that there is no such condition. A text that is typed counts from the
// moment at which its box loses the focus; nothing is checked.
#ifndef ORRERYUI_RETRIEVAL_CONDITIONS_PAGE_H_
#define ORRERYUI_RETRIEVAL_CONDITIONS_PAGE_H_

#include "platform/dialogs/dialog.h"
#include "retrieval/classes.h"

namespace orreryui {

struct GnpfConditions {
  int m_nLarge = -1;       // codes of the classes
  int m_nSmall = -1;       // 60 for a small class that belongs to none that is chosen
  int m_nAdmin = -1;       // index of the prefecture, 0 to 46; any other comes back unchanged
  CString m_strMesh;       // mesh code, as typed
  CString m_strAdminCode;  // code of the prefecture, or what was typed in its place
  CString m_strLarge;      // names of the classes
  CString m_strSmall;
  CString m_strAdminName;  // of the prefecture
  CString m_strWord;       // what a name must contain
};

class CDlgGnpfConditions : public CDialog, public GnpfConditions {
 protected:
  // The numbers of the page's controls.
  struct Controls {
    int mesh;
    int admin;
    int large;
    int small;
    int word;
    int large_code;  // the fixed texts that show the codes
    int small_code;
  };

  CDlgGnpfConditions(const DialogTemplate& page, const Controls& controls)
      : CDialog(page), controls_(controls) {}

  // Shows the fields: classes by their names, which may be in no list yet.
  void OnInitDialog() override;
  void OnSelectAdmin();
  void OnSelectSmall();
  void OnLeaveMesh();
  void OnLeaveAdmin();
  void OnLeaveWord();
  void OnClear();

  // The class that the user's small class is one of; null if there is none.
  virtual const ClassWithSmall* ClassOfSmall() const = 0;

  void TakeLarge(int code, const char* name);
  void ListSmall();
  void ShowCode(int id, int code);

  template <class Range>
  void FillList(int id, const Range& range) {
    ResetContent(id);
    for (const auto& entry : range) AddString(id, entry.name);
  }

 private:
  void TakePrefecture();

  const Controls controls_;
};

}  // namespace orreryui

#endif  // ORRERYUI_RETRIEVAL_CONDITIONS_PAGE_H_
