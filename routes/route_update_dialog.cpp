#include "routes/route_update_dialog.h"

#include "frame/entries.h"
#include "points/point_boxes.h"
#include "routes/maps.h"
#include "templates/route_update.h"

namespace orreryui {

using namespace route_update;

std::span<const Message<CDlgRouteUpdate>> CDlgRouteUpdate::Messages() {
  static constexpr Message<CDlgRouteUpdate> kMessages[] = {
      {kMaps, Event::kSelectionChange, &CDlgRouteUpdate::OnSelectEntry},
      {kDelete, Event::kClick, &CDlgRouteUpdate::OnDeleteEntry},
      {kRename, Event::kClick, &CDlgRouteUpdate::OnRenameEntry},
  };
  return kMessages;
}

CDlgRouteUpdate::CDlgRouteUpdate() : DialogWithMessages(kTemplate) {}

CString CDlgRouteUpdate::ListPath() const {
  return MasterListPath(m_strFolder, MapKindOf(m_nKind));
}

// Where the list can't be read, the rows that are known stay.
void CDlgRouteUpdate::LoadEntries() {
  if (m_nKind != 0) SetWindowText("      エリアマップの更新"_sj);
  const MasterList list = ReadMasterList(ListPath());
  if (list.complete || m_aEntries.entries.empty()) m_aEntries = list;
  ResetContent(kMaps);
  for (const CString& entry : m_aEntries.entries) AddString(kMaps, MasterEntryLabel(entry));
  m_nCount = GetCount(kMaps);
  ShowCount(*this, kCount, m_nCount);
}

void CDlgRouteUpdate::OnSelectEntry() {
  m_nSelected = GetCurSel(kMaps);
  const auto [name, path] =
      SplitMasterEntry(m_aEntries.entries[static_cast<std::size_t>(m_nSelected)]);
  m_strName = name;
  m_strPath = path;
  SetDlgItemText(kName, m_strName);
}

void CDlgRouteUpdate::OnDeleteEntry() {
  if (m_nSelected < 0) return;
  const auto index = static_cast<std::size_t>(m_nSelected);
  if (!DeleteMap(ListPath(), m_aEntries, index, m_strPath)) return;
  m_nSelected = -1;
  LoadEntries();
}

void CDlgRouteUpdate::OnRenameEntry() {
  m_strName = FirstLine(GetDlgItemText(kName));
  if (m_strName.IsEmpty() || m_nSelected < 0) return;
  auto index = static_cast<std::size_t>(m_nSelected);
  if (!RenameMap(ListPath(), m_aEntries, index, {m_strName, m_strPath})) return;
  m_nSelected = static_cast<int>(index);
  LoadEntries();
}

}  // namespace orreryui
