// The base of all dialogs: a class on a template, with public fields that its caller fills before
// the run and reads after it, and handlers that a message map binds to the events of its controls.
//
//   class CDlgRange : public DialogWithMessages<CDlgRange> {
//    public:
//     CDlgRange() : DialogWithMessages(kRangeTemplate) {}
//     CString m_strWest;
//     static std::span<const Message<CDlgRange>> Messages();   // the table, in the .cpp
//    private:
//     void OnInitDialog() override;
//     void OnEnlarge();                                        // a handler
//   };
//
// A dialog object runs once or many times; each run starts from the template anew. Texts are in
// code page 932. An operation on a control that the template lacks, or on a row that isn't there,
// does nothing and reads as empty, 0 or -1.
#ifndef ORRERYUI_PLATFORM_DIALOGS_DIALOG_H_
#define ORRERYUI_PLATFORM_DIALOGS_DIALOG_H_

#include <orreryui/cstring.h>

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "platform/dialogs/dialog_model.h"
#include "platform/dialogs/message_map.h"

namespace orreryui {

class CDialog;
class ControlRun;

// One pass of data between the edit boxes of a dialog and its fields.
class DataExchange {
 public:
  DataExchange(CDialog& dialog, bool saves) : dialog_(dialog), saves_(saves) {}

  // Binds the text of a control to a field, in the direction of this pass.
  void Text(int id, CString& field);

 private:
  CDialog& dialog_;
  bool saves_;  // from the boxes to the fields
};

class CDialog {
 public:
  explicit CDialog(const DialogTemplate& dialog_template);
  virtual ~CDialog();
  CDialog(const CDialog&) = delete;
  CDialog& operator=(const CDialog&) = delete;

  // Shows the dialog until it has ended, and returns the code that it ended with; -1 if it can't
  // be shown, and then nothing of it has run.
  int DoModal();

  // Makes this dialog the page of tab `tab` of the tab control `tab_control` of `sheet`, which is
  // running and outlives it on the screen. The page runs its OnInitDialog at once.
  void CreatePage(CDialog& sheet, int tab_control, int tab);

 protected:
  // At the start of a run, after the fields went into the boxes that are bound to them.
  virtual void OnInitDialog() {}
  // Button 1, or Enter in a dialog that has no default button.
  virtual void OnOK();
  // Button 2, Esc and the close box, with or without such a button.
  virtual void OnCancel();
  // When the dialog comes to the screen, and when it is to be drawn anew.
  virtual void OnPaint() {}
  virtual void DoDataExchange(DataExchange&) {}

  // Runs the handler of an event, if there is one; returns whether there is.
  virtual bool OnMessage(int id, Event event);

  // Ends the run with this code. Handlers that are running finish; no further one runs.
  void EndDialog(int code);

  // Copies the bound boxes to their fields, or back.
  void UpdateData(bool saves);

 public:
  CString GetDlgItemText(int id) const;
  void SetDlgItemText(int id, CString text);
  void SetDlgItemInt(int id, int value);
  void SetWindowText(const char* title);
  void MoveWindow(int x, int y);  // to this pixel of the screen
  void SetFocus(int id);
  void ShowWindow(int id, bool shows);
  void EnableWindow(int id, bool enables);

  // Turns the radio button `id` on and the others with numbers from `first` to `last` off. An id
  // outside that range turns all off.
  void CheckRadioButton(int first, int last, int id);
  void CheckDlgButton(int id, bool checks);
  bool IsDlgButtonChecked(int id) const;

  // Lists of all kinds, combo boxes and tab controls. Rows count from 0; -1 means none.
  void ResetContent(int id);
  void AddString(int id, const char* text);
  int GetCount(int id) const;
  int GetCurSel(int id) const;
  // A combo box shows the row in its edit field; a row that isn't there clears both.
  void SetCurSel(int id, int row);
  CString GetLBText(int id, int row) const;

  // Report lists. Widths are in pixels of a screen at scale 1.
  void InsertColumn(int id, const char* title, int width);
  void SetItemText(int id, int row, int column, const char* text);

  // Owner-drawn buttons. Colours are 0x00BBGGRR; no colour is an empty swatch or no frame. The note
  // says what the colour stands for, if that isn't itself.
  void SetSwatch(int id, std::optional<std::uint32_t> colour, const char* note = "");
  void FrameSwatch(int id, std::optional<std::uint32_t> colour);

 private:
  friend class ControlRun;
  friend class CFileDialog;

  const Control* Find(int id) const;
  Control* Change(int id);

  const DialogTemplate& template_;
  DialogModel model_;
  std::unique_ptr<ControlRun> page_run_;  // of a page, as long as it stands
  ControlRun* run_ = nullptr;             // while the dialog runs
};

// A dialog whose class D has a message map: a static member function Messages() that returns a
// range of Message<D>. Events that the map doesn't name go to Base, which also gets what the
// constructor is called with. A debug build asserts that the template has every control of the map.
template <class D, class Base = CDialog>
class DialogWithMessages : public Base {
 protected:
  template <class... Arguments>
  explicit DialogWithMessages(const DialogTemplate& dialog_template, Arguments&&... arguments)
      : Base(dialog_template, std::forward<Arguments>(arguments)...) {
    assert(MapFits(dialog_template));
  }

  bool OnMessage(int id, Event event) override {
    for (const Message<D>& message : D::Messages()) {
      if (!message.Matches(id, event)) continue;
      message.Send(static_cast<D&>(*this), id);
      return true;
    }
    return Base::OnMessage(id, event);
  }

 private:
  // Whether the template has every control that the map names.
  static bool MapFits(const DialogTemplate& dialog_template) {
    const auto has = [&](int id) {
      return std::any_of(dialog_template.controls.begin(), dialog_template.controls.end(),
                         [id](const ControlTemplate& control) { return control.id == id; });
    };
    for (const Message<D>& message : D::Messages()) {
      for (int id = message.First(); id <= message.Last(); ++id) {
        if (!has(id)) return false;
      }
    }
    return true;
  }
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_DIALOG_H_
