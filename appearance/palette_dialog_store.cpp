// The operations of the palette editor on the disk.
#include <algorithm>

#include "appearance/palette_dialog.h"
#include "frame/entries.h"
#include "frame/line_file.h"
#include "frame/run_editor.h"
#include "platform/dialogs/inner_windows.h"
#include "platform/strings/japanese_literal.h"
#include "platform/system/path.h"
#include "templates/palette.h"

namespace orreryui {

using namespace palette;

namespace {

constexpr const char* kAskUpdate = "現在選択中の配色を更新します！"_sj;
constexpr const char* kAskRegister = "新規に配色を登録します！"_sj;
constexpr const char* kNameMissing = "配色の名称を入力してください！"_sj;
constexpr const char* kNameTaken = "配色の名称を新規に入力してください！"_sj;
constexpr const char* kListFull = "配色は許容限度(20)まで登録されています！"_sj;
constexpr const char* kAskDelete = "現在選択中の配色を削除します！"_sj;

// The slots of the rows of a palette file.
constexpr std::array<std::size_t, kRowElevations.size()> kRowSlots = {1, 12, 2, 3, 4, 5,
                                                                      6, 7,  8, 9, 10};

bool HasName(const PaletteList& list, const CString& name) {
  return std::any_of(list.entries.begin(), list.entries.end(),
                     [&name](const PaletteEntry& palette) { return palette.name == name; });
}

}  // namespace

const PaletteEntry* CDlgPalette::PaletteAt(int index) const {
  const bool exists = index >= 0 && index < static_cast<int>(m_aPalettes.entries.size());
  return exists ? &m_aPalettes.entries[static_cast<std::size_t>(index)] : nullptr;
}

CString CDlgPalette::PathOf(int index) const {
  const PaletteEntry* const palette = PaletteAt(index);
  return palette && !palette->file.IsEmpty() ? m_strDir + palette->file : CString();
}

void CDlgPalette::LoadColors(int index) {
  m_strPath = PathOf(index);
  const PalettePoints points = ReadPalette(m_strPath).value_or(PalettePoints());
  const LevelColours colours = m_nCheck == 1 ? InterpolatedColours(points) : ExactColours(points);
  for (std::size_t row = 0; row < kRowSlots.size(); ++row) {
    m_crColor[kRowSlots[row]] = colours[static_cast<std::size_t>(LevelOf(kRowElevations[row]))];
  }
  m_crSea = m_crColor[1];
  m_crColor[11] = m_crLake;
  m_crColor[13] = m_crBack;
}

bool CDlgPalette::IsBetweenNeighbours(std::size_t slot) const {
  const auto* const row = std::find(kRowSlots.begin(), kRowSlots.end(), slot);
  return m_nCheck == 0 && row != kRowSlots.end() &&
         IsLeftOut(static_cast<std::size_t>(row - kRowSlots.begin()), m_crColor[slot]);
}

std::string CDlgPalette::TextOfPalette(const CString& path, const CString& name) const {
  RowColours colours{};
  for (std::size_t row = 0; row < kRowSlots.size(); ++row) {
    colours[row] = m_crColor[kRowSlots[row]];
  }
  return PaletteText(path, name, colours);
}

bool CDlgPalette::UpdatePalette() {
  if (AfxMessageBox(kAskUpdate) != IDOK) return true;
  const PaletteEntry* const palette = PaletteAt(m_nSelect);
  if (!palette || LeadsOut(palette->file)) return false;
  // Its file may have become another palette's.
  PaletteList list = ReadPaletteList(m_strDir);
  const auto number = static_cast<std::size_t>(m_nSelect);
  if (FindAgain(m_aPalettes.entries, number, list.entries) == list.entries.end()) return false;
  const CString path = PathOf(m_nSelect);
  if (!RewriteInPlace(path, TextOfPalette(path, palette->name))) return false;
  m_strChange = "PaletteChange_F";
  return true;
}

bool CDlgPalette::AskForName(CString& name) {
  for (;;) {
    name = GetDlgItemText(kNames);
    if (!name.IsEmpty() && name != kNewEntry) return true;
    if (AfxMessageBox(kNameMissing) != IDOK) return false;
  }
}

bool CDlgPalette::RegisterPalette() {
  CString name;
  if (AfxMessageBox(kAskRegister) != IDOK || !AskForName(name)) return true;
  const ListedOnce listed_once;
  PaletteList list = ReadPaletteList(m_strDir);
  if (!m_aPalettes.complete || !list.complete) return false;
  if (list.entries.size() >= kMostRegistered) {
    AfxMessageBox(kListFull);
    return true;
  }
  const PaletteEntry palette{name, NewPaletteFile(m_strDir, list)};
  if (HasName(list, name) || !FitsInALine(palette)) {
    AfxMessageBox(kNameTaken);
    return true;
  }
  const std::string text = TextOfPalette(m_strDir + palette.file, name);
  if (!AddPaletteEntry(m_strDir, palette, text)) return false;
  if (!PaletteAt(m_nNewIndex)) m_nSelect = m_nNewIndex = static_cast<int>(list.entries.size());
  list.entries.push_back(palette);
  m_aPalettes = list;
  ListPalettes();
  m_strChange = "PaletteChange_F";
  return true;
}

void CDlgPalette::DeletePalette() {
  if (!PaletteAt(m_nSelect)) return;
  if (AfxMessageBox(kAskDelete) != IDOK) return;
  if (!RemovePaletteEntry(m_strDir, m_aPalettes, static_cast<std::size_t>(m_nSelect))) return;
  ListPalettes();
  if (m_aPalettes.entries.size() < kMostRegistered) AddNewEntry();
  m_strChange = "PaletteChange_F";
}

void CDlgPalette::EditPaletteFile() {
  if (!m_strPath.IsEmpty()) RunEditor(m_strEditor, m_strPath);
}

}  // namespace orreryui
