#include "presentation/menu_file_dialog.h"

#include <algorithm>

#include "frame/entries.h"
#include "frame/run_editor.h"
#include "presentation/menu_add_dialog.h"
#include "templates/menu_file.h"

namespace orreryui {

using namespace menu_file;

namespace {

struct Kind {
  const char* title;
  std::span<const char* const> menus;
  const char* file_column;
  int first_section;
};

constexpr const char* kTextMenuNames[] = {"ﾃｷｽﾄ1"_sj, "ﾃｷｽﾄ2"_sj, "ﾃｷｽﾄ3"_sj, "ﾃｷｽﾄ4"_sj,
                                          "ﾃｷｽﾄ5"_sj};
constexpr const char* kPictureMenuNames[] = {"画像1"_sj, "画像2"_sj, "画像3"_sj};
constexpr const char* kPictureMapNames[] = {"絵地図"_sj};

constexpr Kind kKinds[] = {
    {kTemplate.title, kTextMenuNames, "ﾃｷｽﾄﾌｧｲﾙ"_sj, 0},
    {"   画像メニューに項目の登録・更新"_sj, kPictureMenuNames, "画像ﾌｧｲﾙ"_sj, 5},
    {"   絵地図の登録・更新"_sj, kPictureMapNames, "画像ﾌｧｲﾙ"_sj, 0},
};

}  // namespace

std::span<const Message<CDlgMenuFile>> CDlgMenuFile::Messages() {
  static constexpr Message<CDlgMenuFile> kMessages[] = {
      {kMenu, Event::kSelectionChange, &CDlgMenuFile::OnSelectMenu},
      {kEntries, Event::kDoubleClick, &CDlgMenuFile::OnEditEntry},
      {kEditFile, Event::kClick, &CDlgMenuFile::OnEditFile},
  };
  return kMessages;
}

CDlgMenuFile::CDlgMenuFile() : DialogWithMessages(kTemplate) {}

void CDlgMenuFile::OnInitDialog() {
  const Kind& kind = kKinds[m_nKind];
  SetWindowText(kind.title);
  for (const char* const menu : kind.menus) AddString(kMenu, menu);
  SetCurSel(kMenu, 0);
  InsertColumn(kEntries, "タイトル"_sj, 120);
  InsertColumn(kEntries, kind.file_column, 240);
  m_nSection = FirstSection();
  if (m_nKind == kPictureMap) {
    ShowGuidemap();
  } else {
    ShowSection();
  }
  m_nShownSection = m_nSection;
  m_nModified = -1;
}

int CDlgMenuFile::FirstSection() const { return kKinds[m_nKind].first_section; }

void CDlgMenuFile::ShowSection() {
  m_bComplete = ReadMenuSection(m_strFolder, m_nSection, m_aTitles, m_aFiles);
  ShowEntries();
}

void CDlgMenuFile::ShowGuidemap() {
  m_bComplete = ReadGuidemap(m_strFolder, m_aTitles, m_aFiles);
  ShowEntries();
}

void CDlgMenuFile::ShowEntries() {
  ResetContent(kEntries);
  m_nCount = 0;
  for (std::size_t slot = 0; slot < kMenuSlots; ++slot) {
    if (m_aTitles[slot].IsEmpty()) continue;
    AddRow(m_aTitles[slot], m_aFiles[slot]);
    m_nCount = static_cast<int>(slot) + 1;
  }
  if (m_nCount < static_cast<int>(kMenuSlots)) AddRow("追加はここに!"_sj, "");
  CString text;
  text.Format("計=%d"_sj, m_nCount);
  SetDlgItemText(kCount, text);
}

void CDlgMenuFile::AddRow(const char* title, const char* file) {
  const int row = GetCount(kEntries);
  AddString(kEntries, title);
  SetItemText(kEntries, row, 1, file);
}

// Free slots between those in use have no row. The row behind the entries adds one.
std::size_t CDlgMenuFile::SlotOfRow(int row) const {
  for (std::size_t slot = 0; slot < kMenuSlots; ++slot) {
    if (!m_aTitles[slot].IsEmpty() && row-- == 0) return slot;
  }
  return static_cast<std::size_t>(m_nCount);
}

void CDlgMenuFile::OnSelectMenu() {
  if (m_nKind == kPictureMap) return;
  if (!SaveIfModified()) return SetCurSel(kMenu, m_nShownSection - FirstSection());
  m_nSection = FirstSection() + std::max(GetCurSel(kMenu), 0);
  if (m_nSection != m_nShownSection) ShowSection();
  m_nShownSection = m_nSection;
}

void CDlgMenuFile::OnEditEntry() {
  const int row = GetCurSel(kEntries);
  if (row < 0 || !m_bComplete) return;
  const std::size_t slot = SlotOfRow(row);
  const bool adds = slot == static_cast<std::size_t>(m_nCount);
  CString title = adds ? CString() : m_aTitles[slot];
  CString file = adds ? CString() : m_aFiles[slot];
  const bool is_separator = title.IsEmpty() || file.IsEmpty();
  if (!adds && is_separator) return;
  if (!AskForEntry(adds ? kAddEntry : kChangeEntry, title, file)) return;
  m_aTitles[slot] = title;
  m_aFiles[slot] = file;
  ShowEntries();
  SetCurSel(kEntries, std::min(adds ? row + 1 : row, GetCount(kEntries) - 1));
  m_nModified = 1;
}

// True if the user has made another entry of the texts.
bool CDlgMenuFile::AskForEntry(int mode, CString& title, CString& file) const {
  CDlgMenuAdd dialog;
  dialog.m_nMode = mode;
  dialog.m_nKind = m_nKind;
  dialog.m_strTitle = title;
  dialog.m_strFile = file;
  if (dialog.DoModal() != IDOK) return false;
  const CString new_title = FirstLine(dialog.m_strTitle);
  const CString new_file = FirstLine(dialog.m_strFile);
  if (new_title == title && new_file == file) return false;
  title = new_title;
  file = new_file;
  return TakesEntry(title, file);
}

bool CDlgMenuFile::TakesEntry(const CString& title, const CString& file) const {
  const bool is_separator = title.Find("--") >= 0;
  if (!is_separator && (title.IsEmpty() || file.IsEmpty())) return false;
  return m_nKind == kPictureMap ? FitsInGuidemap(title, file) : FitsInMenuSection(title, file);
}

void CDlgMenuFile::OnEditFile() {
  if (!SaveIfModified()) return;
  RunEditor(m_strEditor,
            m_nKind == kPictureMap ? GuidemapPath(m_strFolder) : MenuFilePath(m_strFolder));
  m_nResult = 1;
}

void CDlgMenuFile::OnOK() {
  if (SaveIfModified()) CDialog::OnOK();
}

bool CDlgMenuFile::SaveIfModified() { return m_nModified != 1 || SaveList(); }

bool CDlgMenuFile::SaveList() {
  const bool saved = m_nKind == kPictureMap
                         ? WriteGuidemap(m_strFolder, m_aTitles, m_aFiles)
                         : WriteMenuSection(m_strFolder, m_nSection, m_aTitles, m_aFiles);
  if (!saved) return false;
  m_nModified = -1;
  m_nResult = 1;
  return true;
}

}  // namespace orreryui
