// The palette editor: lets the user choose a palette, change its colours, register a new palette,
// delete one, or have a palette's file opened in the text editor. What was registered, updated or
// deleted is on the disk at once, and stays when the user gives up. Where the disk refuses, the
// click has no effect.
//
// The last row of the list is the new entry, under which the user puts a new palette together; a
// list that holds kMostRegistered palettes or more has none.
#ifndef ORRERYUI_APPEARANCE_PALETTE_DIALOG_H_
#define ORRERYUI_APPEARANCE_PALETTE_DIALOG_H_

#include <array>
#include <cstddef>

#include "appearance/colour.h"
#include "appearance/palette_file.h"
#include "appearance/palette_list.h"
#include "platform/dialogs/dialog.h"

namespace orreryui {

class CDlgPalette : public DialogWithMessages<CDlgPalette> {
 public:
  // Colours by slot, 1 to 13, as the swatches C1 to C13 show them: the sea; 100 m to 4,000 m (2 to
  // 10); the lakes (11); the land at 0 m (12); the map's background (13). Slot 0 isn't used.
  using Slots = std::array<COLORREF, 14>;

  static constexpr std::size_t kMostRegistered = 19;

  CDlgPalette();

  Slots m_crColor{};           // the working colours
  Slots m_crNew{};             // of the palette that is put together under the new entry
  COLORREF m_crSea = kBlack;   // the sea of the palette that was loaded last
  COLORREF m_crLake = kBlack;  // lakes and background lie in no palette file
  COLORREF m_crBack = kBlack;
  int m_nLoaded = -1;       // 1 once the first paint has loaded the colours
  int m_nSelect = 0;        // the chosen row; kept as it is where the list has no such row
  int m_nNewIndex = -1;     // the new entry's row; once that has been registered, its palette's
  int m_nCheck = 0;         // 1: bands that the palette leaves out show the colour that they get
  PaletteList m_aPalettes;  // names and files, in rows
  CString m_strChange;      // empty, "PaletteChange_D" (not saved) or "PaletteChange_F" (saved)
  CString m_strEditor;      // command of the text editor
  CString m_strPath;        // of the palette file that was loaded last; empty if there was none
  CString m_strDir;         // folder of the palette files, with its separator

  static std::span<const Message<CDlgPalette>> Messages();

  // The store (palette_dialog_store.cpp).

  // Fills the working colours from the palette in row `index`; one that can't be read is black.
  void LoadColors(int index);
  // Asks, then writes the working colours to the chosen palette's file. False: that is outside the
  // folder, the list has the palette no more, or the disk refused.
  bool UpdatePalette();
  // Asks, then adds a palette with the working colours to the list. False: the disk refused.
  bool RegisterPalette();
  // Asks, then removes the chosen palette.
  void DeletePalette();
  void EditPaletteFile();

 private:
  void OnInitDialog() override;
  void OnPaint() override;
  void OnOK() override;
  void OnColour(int id);
  void OnSelectPalette();
  void OnToggleCheck();
  void OnEdit();

  // Whether the chosen row is the new entry's, or its palette's once that has been registered.
  bool IsNewSelected() const { return m_nNewIndex >= 0 && m_nSelect == m_nNewIndex; }
  // The palette in a row, or null: the new entry has none.
  const PaletteEntry* PaletteAt(int index) const;
  CString PathOf(int index) const;
  // Whether the colour that is shown stands for one between those of the elevations beside it.
  bool IsBetweenNeighbours(std::size_t slot) const;
  // What the palette's file holds for the working colours.
  std::string TextOfPalette(const CString& path, const CString& name) const;
  bool AskForName(CString& name);

  // Reads the list again; where it reads in part only, the one that is known counts.
  void ListPalettes();
  void AddNewEntry();
  void ClearCheck();
  void ChangeColour(std::size_t slot, COLORREF colour);
  void UseNewColours();
  void ShowColours();
};

}  // namespace orreryui

#endif  // ORRERYUI_APPEARANCE_PALETTE_DIALOG_H_
