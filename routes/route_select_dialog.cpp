#include "routes/route_select_dialog.h"

#include "frame/run_editor.h"
#include "points/point_boxes.h"
#include "points/point_file.h"
#include "routes/master_list.h"
#include "routes/route_update_dialog.h"
#include "templates/route_select.h"

namespace orreryui {

using namespace route_select;

namespace {

constexpr PointBoxes kPointBoxes = {kPlace, kItem, kLatitude, kLongitude, kTextFile, kPictureFile};

}  // namespace

std::span<const Message<CDlgRouteSelect>> CDlgRouteSelect::Messages() {
  static constexpr Message<CDlgRouteSelect> kMessages[] = {
      {kAutomatic, Event::kClick, &CDlgRouteSelect::OnAutomatic},
      {kManual, Event::kClick, &CDlgRouteSelect::OnManual},
      {kMaps, Event::kSelectionChange, &CDlgRouteSelect::OnSelectMap},
      {kPoints, Event::kSelectionChange, &CDlgRouteSelect::OnSelectPoint},
      {kEdit, Event::kClick, &CDlgRouteSelect::OnEditData},
      {kUpdate, Event::kClick, &CDlgRouteSelect::OnUpdateList},
  };
  return kMessages;
}

CDlgRouteSelect::CDlgRouteSelect() : DialogWithMessages(kTemplate) {}

// A route is what the template shows.
void CDlgRouteSelect::OnInitDialog() {
  if (m_nKind != 0) {
    SetWindowText("        エリアマップの選択"_sj);
    SetDlgItemText(kMapsLabel, "ｴﾘｱﾏｯﾌﾟ"_sj);
    SetDlgItemText(kDataGroup, "ｴﾘｱﾏｯﾌﾟのデータ"_sj);
    SetDlgItemText(kDisplayGroup, "ｴﾘｱﾏｯﾌﾟの表示方法"_sj);
  }
  LoadMaps();
  CheckDisplay(*this, kAutomatic, kManual, m_strDisplay);
}

// A list that can't be opened leaves the count as it was.
void CDlgRouteSelect::LoadMaps() {
  ResetContent(kMaps);
  const MasterList list = ReadMasterList(MasterListPath(m_strFolder, MapKindOf(m_nKind)));
  m_aEntries = list.entries;
  if (!list.opened) return;
  for (const CString& entry : m_aEntries) AddString(kMaps, MasterEntryLabel(entry));
  m_nMapCount = GetCount(kMaps);
  CString count;
  count.Format("=%d", m_nMapCount);
  SetDlgItemText(kMapPosition, "計"_sj + count);
}

void CDlgRouteSelect::OnSelectMap() {
  m_nSelected = GetCurSel(kMaps);
  ShowPosition(*this, kMapPosition, m_nSelected, m_nMapCount);
  const auto [name, path] = SplitMasterEntry(m_aEntries[static_cast<std::size_t>(m_nSelected)]);
  m_strName = name;
  m_strPath = path;
  if (!m_strPath.IsEmpty()) LoadPoints();
}

void CDlgRouteSelect::LoadPoints() {
  m_aPacked = ReadPointFile(m_strPath);
  ListPoints(*this, kPoints, m_aPacked);
  m_nPointCount = GetCount(kPoints);
  ShowCount(*this, kPosition, m_nPointCount);
  ShowPoint(*this, kPointBoxes, m_aPacked, 0);
}

void CDlgRouteSelect::OnSelectPoint() {
  const int row = GetCurSel(kPoints);
  ShowPosition(*this, kPosition, row, m_nPointCount);
  ShowPoint(*this, kPointBoxes, m_aPacked, row);
}

void CDlgRouteSelect::OnEditData() {
  if (!m_strPath.IsEmpty()) RunEditor(m_strEditor, m_strPath);
}

void CDlgRouteSelect::OnUpdateList() {
  CDlgRouteUpdate dialog;
  dialog.m_strFolder = m_strFolder;
  dialog.m_nKind = m_nKind;
  if (dialog.DoModal() == IDOK) OnInitDialog();
}

void CDlgRouteSelect::OnAutomatic() { m_strDisplay = kAutomaticDisplay; }

void CDlgRouteSelect::OnManual() { m_strDisplay = kManualDisplay; }

}  // namespace orreryui
