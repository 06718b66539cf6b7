#include "albums/album_update_dialog.h"

#include "albums/text_preview.h"
#include "frame/run_editor.h"
#include "points/album_file.h"
#include "points/packed_point.h"
#include "templates/album_update.h"

namespace orreryui {

using namespace album_update;

namespace {

constexpr int kEndedByDeletion = 3;
constexpr int kCodeOfDeletion = -1;
constexpr int kCodeOfEnd = 0;

}  // namespace

std::span<const Message<CDlgAlbumUpdate>> CDlgAlbumUpdate::Messages() {
  static constexpr Message<CDlgAlbumUpdate> kMessages[] = {
      {kData, Event::kSelectionChange, &CDlgAlbumUpdate::OnSelectData},
      {kPreviewText, Event::kClick, &CDlgAlbumUpdate::OnPreviewText},
      {kEditAlbum, Event::kClick, &CDlgAlbumUpdate::OnEditAlbum},
      {kDeleteAlbum, Event::kClick, &CDlgAlbumUpdate::OnDeleteAlbum},
      {kEndUpdate, Event::kClick, &CDlgAlbumUpdate::OnEndUpdate},
  };
  return kMessages;
}

CDlgAlbumUpdate::CDlgAlbumUpdate() : DialogWithMessages(kTemplate) {}

void CDlgAlbumUpdate::DoDataExchange(DataExchange& exchange) {
  exchange.Text(kPlace, m_strPlace);
  exchange.Text(kItem, m_strItem);
  exchange.Text(kLatitude, m_strLatitude);
  exchange.Text(kLongitude, m_strLongitude);
}

void CDlgAlbumUpdate::OnInitDialog() {
  if (m_strAlbumState == "new") {
    CreateEmptyAlbum(m_strAlbumFile);
  } else {
    LoadData();
  }
  SetFocus(kMemo1);
}

void CDlgAlbumUpdate::LoadData() {
  m_aPacked.clear();
  for (const CString& line : ReadAlbumLines(m_strAlbumFile)) {
    m_aPacked.push_back(PackPointLine(line));
    AddString(kData, PointLabel(m_aPacked.back()));
  }
  m_nCount = GetCount(kData);
  CString text;
  text.Format("%d", m_nCount);
  SetDlgItemText(kPosition, text + "件"_sj);
}

void CDlgAlbumUpdate::OnSelectData() {
  const int row = GetCurSel(kData);
  if (row < 0 || row >= m_nCount) return;
  CString position;
  position.Format("%d/%d", row + 1, m_nCount);
  SetDlgItemText(kPosition, position);
  const DataLine data = UnpackPoint(m_aPacked[static_cast<std::size_t>(row)]);
  SetDlgItemText(kTextFile, data.text_file);
  SetDlgItemText(kPictureFile, data.picture);
  SetDlgItemText(kMemo1, data.place);
  SetDlgItemText(kMemo2, data.item);
  m_strTextFile = data.text_file;
}

void CDlgAlbumUpdate::OnPreviewText() { PreviewText(m_strTextFile); }

void CDlgAlbumUpdate::OnEditAlbum() {
  if (!m_strAlbumFile.IsEmpty()) RunEditor(m_strEditor, m_strAlbumFile);
}

void CDlgAlbumUpdate::OnDeleteAlbum() {
  m_nCode = kCodeOfDeletion;
  EndDialog(kEndedByDeletion);
}

void CDlgAlbumUpdate::OnEndUpdate() {
  m_nCode = kCodeOfEnd;
  EndDialog(IDOK);
}

}  // namespace orreryui
