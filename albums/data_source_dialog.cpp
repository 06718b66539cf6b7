#include "albums/data_source_dialog.h"

#include "albums/data_file_list.h"
#include "frame/entries.h"
#include "templates/data_source.h"

namespace orreryui {

using namespace data_source;

namespace {

// What the box of the new name shows after a registration. A name that begins like it can't be
// registered, so that a second click doesn't register the confirmation.
constexpr const char* kRegistered = "登録されました！"_sj;
constexpr const char* kRegisteredStart = "登録"_sj;

const char* NoteFor(bool uses_common_area, int selected) {
  if (selected == 0) return "HD(共通領域)のﾃﾞｰﾀﾌｧｲﾙが地図に表示されます。"_sj;
  return uses_common_area ? "HD(共通領域)と指定の２つのﾃﾞｰﾀﾌｧｲﾙが地図に表示されます。"_sj
                          : "指定のﾃﾞｰﾀﾌｧｲﾙが地図に表示されます。"_sj;
}

}  // namespace

std::span<const Message<CDlgDataSource>> CDlgDataSource::Messages() {
  static constexpr Message<CDlgDataSource> kMessages[] = {
      {kFiles, Event::kSelectionChange, &CDlgDataSource::OnSelectFile},
      {kRegister, Event::kClick, &CDlgDataSource::OnRegisterFile},
      {kDelete, Event::kClick, &CDlgDataSource::OnDeleteFile},
      {kUseCommonArea, Event::kClick, &CDlgDataSource::OnToggleCommonArea},
  };
  return kMessages;
}

CDlgDataSource::CDlgDataSource() : DialogWithMessages(kTemplate) {}

void CDlgDataSource::OnInitDialog() {
  LoadFiles();
  if (m_nSelected < 0 || m_nSelected >= m_nCount) m_nSelected = 0;
  ShowPosition();
  SetCurSel(kFiles, m_nSelected);
  m_strFile = GetLBText(kFiles, m_nSelected);
  CheckDlgButton(kUseCommonArea, m_strCommonArea == "on");
  ShowNote();
}

void CDlgDataSource::LoadFiles() {
  ResetContent(kFiles);
  AddString(kFiles, kFixedFiles[0]);
  m_aFiles = ReadDataFileList(ListPath());
  for (const CString& name : m_aFiles.names) AddString(kFiles, name);
  m_nCount = GetCount(kFiles);
}

void CDlgDataSource::OnSelectFile() {
  m_nSelected = GetCurSel(kFiles);
  m_strFile = GetLBText(kFiles, m_nSelected);
  ShowPosition();
}

void CDlgDataSource::OnToggleCommonArea() {
  m_strCommonArea = m_strCommonArea == "off" ? "on" : "off";
  ShowNote();
}

void CDlgDataSource::OnRegisterFile() {
  if (!m_aFiles.complete || m_aFiles.names.size() >= kMostDataFileNames) return;
  const CString name = FirstLine(GetDlgItemText(kNewFile));
  if (!IsDataFileName(name) || name.Find(kRegisteredStart) == 0) return;
  if (!AppendDataFileName(ListPath(), name)) return;
  m_aFiles.names.push_back(name);
  AddString(kFiles, name);
  m_nSelected = m_nCount++;
  SetCurSel(kFiles, m_nSelected);
  m_strFile = name;
  SetDlgItemText(kNewFile, kRegistered);
}

void CDlgDataSource::OnDeleteFile() {
  if (m_nSelected == 0) return;
  const auto index = static_cast<std::size_t>(m_nSelected) - 1;
  if (!RemoveDataFileName(ListPath(), m_aFiles, index)) return;
  m_nSelected = 0;
  OnInitDialog();
}

CString CDlgDataSource::ListPath() const { return m_strFolder + "BINDER.DAT"; }

void CDlgDataSource::ShowPosition() {
  CString text;
  text.Format("%3d/%3d", m_nSelected + 1, m_nCount);
  SetDlgItemText(kPosition, text);
}

void CDlgDataSource::ShowNote() {
  SetDlgItemText(kNote, NoteFor(IsDlgButtonChecked(kUseCommonArea), m_nSelected));
}

}  // namespace orreryui
