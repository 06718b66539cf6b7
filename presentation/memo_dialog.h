// A short text in a small window: the memo of an attached text file, a preview of its first lines,
// or a text that the caller has. The user may type into the text; what is typed is dropped. Nothing
// is written.
#ifndef ORRERYUI_PRESENTATION_MEMO_DIALOG_H_
#define ORRERYUI_PRESENTATION_MEMO_DIALOG_H_

#include "platform/dialogs/dialog.h"

namespace orreryui {

// What CDlgMemo shows. Any other number stands for CDlgMemo::m_strText as the caller set it.
enum MemoMode : int { kMemoOfFile = 1, kPreviewOfFile = 2 };

class CDlgMemo : public CDialog {
 public:
  CDlgMemo();

  int m_nMemoMode = 0;  // a MemoMode
  int m_nLeft = 0;      // left edge of the window in pixels of the screen; below 1: as the template
  CString m_strFile;    // path of the file
  CString m_strText;    // the text to show where it isn't the file's

 private:
  void OnInitDialog() override;
  CString Text() const;
};

}  // namespace orreryui

#endif  // ORRERYUI_PRESENTATION_MEMO_DIALOG_H_
