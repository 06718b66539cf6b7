#include "appearance/palette_dialog.h"

#include <algorithm>
#include <iterator>

#include "platform/dialogs/inner_windows.h"
#include "platform/strings/japanese_literal.h"
#include "templates/palette.h"

namespace orreryui {

using namespace palette;

namespace {

constexpr const char* kUpdate = "更新"_sj;
constexpr const char* kBlackNote = "中間の標高を無視する時は黒色を指定してください！"_sj;
constexpr const char* kBetweenNote = "前後の標高の色から補間"_sj;
constexpr const char* kAskSaveNew = "配色を登録しますか！"_sj;
constexpr const char* kAskSaveOld = "配色を更新しますか！"_sj;

constexpr COLORREF kClickedFrame = kBlack;
constexpr std::size_t kLakeSlot = 11;
constexpr std::size_t kBackSlot = 13;

std::size_t SlotOf(int id) {
  const auto* const place = std::find(std::begin(kSwatches), std::end(kSwatches), id);
  return static_cast<std::size_t>(place - std::begin(kSwatches)) + 1;
}

}  // namespace

std::span<const Message<CDlgPalette>> CDlgPalette::Messages() {
  static constexpr Message<CDlgPalette> kMessages[] = {
      {kSwatches[0], kSwatches[9], Event::kClick, &CDlgPalette::OnColour},
      {kSwatches[10], Event::kClick, &CDlgPalette::OnColour},
      {kSwatches[11], Event::kClick, &CDlgPalette::OnColour},
      {kSwatches[12], Event::kClick, &CDlgPalette::OnColour},
      {kNames, Event::kSelectionChange, &CDlgPalette::OnSelectPalette},
      {kCheck, Event::kClick, &CDlgPalette::OnToggleCheck},
      {kEdit, Event::kClick, &CDlgPalette::OnEdit},
      {kDelete, Event::kClick, &CDlgPalette::DeletePalette},
  };
  return kMessages;
}

CDlgPalette::CDlgPalette() : DialogWithMessages(kTemplate) {
  m_crNew[1] = ColourOf(0, 0, 255);
  m_crNew[10] = ColourOf(255, 255, 255);
}

void CDlgPalette::OnInitDialog() {
  ListPalettes();
  const auto count = m_aPalettes.entries.size();
  if (count < kMostRegistered) AddNewEntry();
  SetCurSel(kNames, m_nSelect);
  CString number;
  number.Format("%d", static_cast<int>(count));
  SetDlgItemText(kNote, CString("配色の登録数="_sj) + number);
}

void CDlgPalette::ListPalettes() {
  ResetContent(kNames);
  const PaletteList read = ReadPaletteList(m_strDir);
  if (read.complete || m_aPalettes.entries.empty()) m_aPalettes = read;
  for (const PaletteEntry& palette : m_aPalettes.entries) AddString(kNames, palette.name);
}

void CDlgPalette::AddNewEntry() {
  m_nNewIndex = GetCount(kNames);
  AddString(kNames, kNewEntry);
}

void CDlgPalette::OnPaint() {
  if (m_nLoaded == -1) {
    m_nLoaded = 1;
    LoadColors(m_nSelect);
    if (IsNewSelected()) UseNewColours();
  }
  ShowColours();
}

void CDlgPalette::ShowColours() {
  for (const int id : kSwatches) {
    const std::size_t slot = SlotOf(id);
    SetSwatch(id, m_crColor[slot], IsBetweenNeighbours(slot) ? kBetweenNote : "");
  }
}

void CDlgPalette::OnColour(int id) {
  ClearCheck();
  for (const int swatch : kSwatches) FrameSwatch(swatch, std::nullopt);
  FrameSwatch(id, kClickedFrame);

  const std::size_t slot = SlotOf(id);
  const COLORREF start = IsNewSelected() ? m_crNew[slot] : m_crColor[slot];
  const auto colour = ChooseColour(start);
  if (!colour) return;
  if (IsNewSelected()) m_crNew[slot] = *colour;
  if (*colour == start) return;
  ChangeColour(slot, *colour);
  SetDlgItemText(kEdit, IsNewSelected() ? kNewEntry : kUpdate);
  SetDlgItemText(kNote, kBlackNote);
  ShowColours();
}

void CDlgPalette::ChangeColour(std::size_t slot, COLORREF colour) {
  m_crColor[slot] = colour;
  m_strChange = "PaletteChange_D";
  if (slot != kLakeSlot && slot != kBackSlot) return;
  (slot == kLakeSlot ? m_crLake : m_crBack) = colour;
  m_strChange.Empty();
}

void CDlgPalette::OnSelectPalette() {
  m_nSelect = GetCurSel(kNames);
  ClearCheck();
  if (IsNewSelected() && !PaletteAt(m_nSelect)) {
    UseNewColours();
  } else {
    LoadColors(m_nSelect);
  }
  ShowColours();
}

void CDlgPalette::UseNewColours() {
  for (std::size_t slot = 1; slot < m_crNew.size(); ++slot) {
    if (slot != kLakeSlot && slot != kBackSlot) m_crColor[slot] = m_crNew[slot];
  }
}

void CDlgPalette::OnToggleCheck() {
  m_nCheck = m_nCheck == 0 ? 1 : 0;
  CheckDlgButton(kCheck, m_nCheck == 1);
  LoadColors(m_nSelect);
  ShowColours();
}

void CDlgPalette::ClearCheck() {
  m_nCheck = 0;
  CheckDlgButton(kCheck, false);
}

void CDlgPalette::OnEdit() {
  if (IsNewSelected()) {
    RegisterPalette();
  } else if (m_strChange.IsEmpty()) {
    EditPaletteFile();
  } else {
    UpdatePalette();
  }
}

// Colours that were to be saved and couldn't be keep the dialog open.
void CDlgPalette::OnOK() {
  if (m_strChange == "PaletteChange_D") {
    if (AfxMessageBox(IsNewSelected() ? kAskSaveNew : kAskSaveOld) != IDOK) {
      m_strChange.Empty();
    } else if (!(IsNewSelected() ? RegisterPalette() : UpdatePalette())) {
      return;
    }
  }
  CDialog::OnOK();
}

}  // namespace orreryui
