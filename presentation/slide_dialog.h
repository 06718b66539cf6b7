// How the host runs a slide show of the registered points. A value that the dialog doesn't know
// stays as it is until the user clicks its control. No file is read or written.
#ifndef ORRERYUI_PRESENTATION_SLIDE_DIALOG_H_
#define ORRERYUI_PRESENTATION_SLIDE_DIALOG_H_

#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgSlide : public DialogWithMessages<CDlgSlide> {
 public:
  CDlgSlide();

  int m_nContent = 0;        // 1 text, 2 picture, 3 both
  int m_nInterval = 0;       // seconds between two slides
  int m_nMapSize = 0;        // of the position map: 1 large, 2 small
  CString m_strMemo;         // "ON" or "OFF": the memo shows with a picture
  CString m_strMethod;       // "AUTO" or "MANUAL"
  CString m_strRemaining;    // "on" or "off": the seconds that remain
  CString m_strPositionMap;  // "on" or "off": the map of the registered points
  CString m_strJpeg;         // "on" or "off": "off" leaves out the JPG pictures

  static std::span<const Message<CDlgSlide>> Messages();

 private:
  void OnInitDialog() override;
  void OnChooseContent(int id);
  void OnChooseMethod(int id);
  void OnChooseMapSize(int id);
  void OnToggle(int id);
  void OnLonger();
  void OnShorter();
};

}  // namespace orreryui

#endif  // ORRERYUI_PRESENTATION_SLIDE_DIALOG_H_
