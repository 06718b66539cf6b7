#include "routes/album_files_dialog.h"

#include <optional>

#include "frame/entries.h"
#include "frame/split.h"
#include "points/album_file.h"
#include "points/packed_point.h"
#include "points/point_boxes.h"
#include "points/point_file.h"
#include "routes/map_mode.h"
#include "routes/maps.h"
#include "routes/member_file.h"
#include "routes/route_regist_dialog.h"
#include "templates/album_files.h"

namespace orreryui {

using namespace album_files;

namespace {

// A file of this name, in the working directory, is a route.
constexpr char kReturnMode[] = "RETURN";

constexpr PointBoxes kPointBoxes = {kPlace, kItem, kLatitude, kLongitude, kTextFile, kPictureFile};

// The kind of a map that the host's list may become; nothing if the mode names a file.
std::optional<MapKind> KindOfList(const CString& mode) {
  if (mode == kRouteMode) return MapKind::kRoute;
  if (mode == kAreaMode) return MapKind::kArea;
  return std::nullopt;
}

bool ShowsAsRoute(const CString& mode) { return mode.Find(kRouteMode) >= 0 || mode == kReturnMode; }

}  // namespace

std::span<const Message<CDlgAlbumFiles>> CDlgAlbumFiles::Messages() {
  static constexpr Message<CDlgAlbumFiles> kMessages[] = {
      {kPoints, Event::kSelectionChange, &CDlgAlbumFiles::OnSelectPoint},
      {kEnd, Event::kClick, &CDlgAlbumFiles::OnEnd},
      {kAutomatic, Event::kClick, &CDlgAlbumFiles::OnAutomatic},
      {kManual, Event::kClick, &CDlgAlbumFiles::OnManual},
      {kRegister, Event::kClick, &CDlgAlbumFiles::OnRegister},
  };
  return kMessages;
}

CDlgAlbumFiles::CDlgAlbumFiles() : DialogWithMessages(kTemplate) {}

void CDlgAlbumFiles::OnInitDialog() {
  ShowKind();
  LoadPoints();
  ListPoints(*this, kPoints, m_aPacked);
  m_nCount = GetCount(kPoints);
  ShowCount(*this, kPosition, m_nCount);
  CheckDisplay(*this, kAutomatic, kManual, m_strDisplay);
  SetCurSel(kPoints, 0);
  ShowPoint(*this, kPointBoxes, m_aPacked, 0);
}

// An album is what the template shows.
void CDlgAlbumFiles::ShowKind() {
  SetDlgItemText(kCaption1, m_strCaption1);
  if (ShowsAsRoute(m_strMode)) {
    SetWindowText("      ﾙｰﾄﾏｯﾌﾟに登録されたﾌｧｲﾙ"_sj);
    SetDlgItemText(kKindLabel, "");
    SetDlgItemText(kRegister, "ﾙｰﾄ登録"_sj);
    SetDlgItemText(kDisplayGroup, "ﾙｰﾄﾏｯﾌﾟの表示方法"_sj);
    return;
  }
  SetDlgItemText(kCaption2, m_strCaption2);
  if (m_strMode == kAreaMode) {
    SetWindowText(" エリア内のﾌｧｲﾙ (中心 N"_sj + m_strCentreLat + ", E" + m_strCentreLon + ")");
    SetDlgItemText(kKindLabel, "");
    SetDlgItemText(kRegister, "ｴﾘｱ登録"_sj);
    SetDlgItemText(kDisplayGroup, "ｴﾘｱﾏｯﾌﾟの表示方法"_sj);
  }
}

void CDlgAlbumFiles::LoadPoints() {
  m_aPacked = KindOfList(m_strMode) ? PackPointLines(m_aLines) : ReadAlbumPoints(m_strMode);
}

void CDlgAlbumFiles::OnSelectPoint() {
  const int row = GetCurSel(kPoints);
  ShowPoint(*this, kPointBoxes, m_aPacked, row);
  ShowPosition(*this, kPosition, row, m_nCount);
}

void CDlgAlbumFiles::OnRegister() {
  const auto kind = KindOfList(m_strMode);
  if (!kind) return;
  CDlgRouteRegist dialog;
  dialog.m_strMode = m_strMode;
  dialog.m_aPacked = m_aPacked;
  if (dialog.DoModal() != IDOK) return;
  const auto lines = MemberLines(m_aPacked);
  if (!RegisterMap(m_strFolder, *kind, FirstLine(dialog.m_strName), lines)) return;
  m_aLines = lines;
  OnInitDialog();
}

void CDlgAlbumFiles::OnAutomatic() { m_strDisplay = kAutomaticDisplay; }

void CDlgAlbumFiles::OnManual() { m_strDisplay = kManualDisplay; }

void CDlgAlbumFiles::OnEnd() { EndDialog(IDOK); }

std::vector<CString> LinesOfList(CString list) {
  std::vector<CString> lines;
  while (lines.size() < kMostListedPoints && list.Find('|') >= 0) {
    const CString line = TakeField(list, '|');
    if (line == kEndMarker) break;
    lines.push_back(line);
  }
  return lines;
}

CString RangeOfArea(int shape, int size) {
  CString text;
  text.Format("%d", shape == 0 ? size / 2 : size);
  return (shape == 0 ? "半径"_sj : "辺長"_sj) + text + "kmの圏内"_sj;
}

}  // namespace orreryui
