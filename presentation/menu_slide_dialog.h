// Which of the host's menus take part in a slide show, and how it goes on. Beside each menu stands
// how many files it has. No file is written.
#ifndef ORRERYUI_PRESENTATION_MENU_SLIDE_DIALOG_H_
#define ORRERYUI_PRESENTATION_MENU_SLIDE_DIALOG_H_

#include <array>

#include "platform/dialogs/dialog.h"
#include "presentation/menu_file.h"

namespace orreryui {

class CDlgMenuSlide : public DialogWithMessages<CDlgMenuSlide> {
 public:
  CDlgMenuSlide();

  std::array<int, kMenus> m_aChosen{};  // 1 for each menu that was chosen by itself
  int m_bAll = 0;                       // 1: all are, whatever m_aChosen says
  int m_nInterval = 0;                  // seconds between two slides
  CString m_strFolder;                  // folder of the menu files, with its separator
  CString m_strDisplay;                 // "AUTO" or "MANUAL"

  static std::span<const Message<CDlgMenuSlide>> Messages();

 private:
  void OnInitDialog() override;
  void OnToggleMenu(int id);
  void OnAllMenus();
  void OnAutomatic();
  void OnManual();
  void OnLonger();
  void OnShorter();

  void ShowCounts();
};

}  // namespace orreryui

#endif  // ORRERYUI_PRESENTATION_MENU_SLIDE_DIALOG_H_
