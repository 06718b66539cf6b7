// The kind of the map and its colouring: lets the user choose what the host's map shows. Reads the
// names of the palettes from "PLTTFILE.DAT" and writes nothing.
//
// Kind and fill depend on each other: the map of the archipelago is offered blank, and a prefecture
// map in Sanson projection is blank. Choosing a region ends the dialog with IDOK.
#ifndef ORRERYUI_APPEARANCE_MAP_TYPE_DIALOG_H_
#define ORRERYUI_APPEARANCE_MAP_TYPE_DIALOG_H_

#include "appearance/map_type_settings.h"
#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgMapType : public DialogWithMessages<CDlgMapType>, public MapTypeSettings {
 public:
  CDlgMapType();

  CString m_strDir;  // folder of the list of palettes, with its separator

  static std::span<const Message<CDlgMapType>> Messages();

 private:
  void OnInitDialog() override;
  void OnTopographic();
  void OnArchipelago();
  void OnPrefectures();
  void OnBlank();
  void OnTint();
  void OnSelectPalette();
  void OnSelectMethod();
  void OnSelectCoastline();
  void OnSelectPrefProjection();
  void OnSelectJapanProjection();

  void BecomeBlank();
  void ShowKind();
  void ShowFill();
  void ShowBlankTexts();
  void ShowCoastline();
};

}  // namespace orreryui

#endif  // ORRERYUI_APPEARANCE_MAP_TYPE_DIALOG_H_
