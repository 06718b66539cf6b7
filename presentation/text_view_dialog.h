// The main text of an attached text file, in a large window. The user may type into the text; what
// is typed is dropped. Nothing is written.
#ifndef ORRERYUI_PRESENTATION_TEXT_VIEW_DIALOG_H_
#define ORRERYUI_PRESENTATION_TEXT_VIEW_DIALOG_H_

#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgTextView : public CDialog {
 public:
  CDlgTextView();

  CString m_strFile;    // path of the text file
  CString m_strTitle1;  // the caption: these two, with a blank between them
  CString m_strTitle2;

 private:
  void OnInitDialog() override;
};

}  // namespace orreryui

#endif  // ORRERYUI_PRESENTATION_TEXT_VIEW_DIALOG_H_
