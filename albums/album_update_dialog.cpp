#include "albums/album_update_dialog.h"

#include "albums/text_preview.h"
#include "frame/run_editor.h"
#include "points/album_file.h"
#include "points/point_boxes.h"
#include "points/point_file.h"
#include "templates/album_update.h"

namespace orreryui {

using namespace album_update;

namespace {

constexpr int kEndedByDeletion = 3;
constexpr int kCodeOfDeletion = -1;
constexpr int kCodeOfEnd = 0;

// The coordinates on show are the registered point's.
constexpr PointBoxes kDataBoxes = {
    .place = kMemo1, .item = kMemo2, .text_file = kTextFile, .picture = kPictureFile};

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
  m_aPacked = ReadAlbumPoints(m_strAlbumFile);
  ListPoints(*this, kData, m_aPacked);
  m_nCount = GetCount(kData);
  ShowCount(*this, kPosition, m_nCount);
}

void CDlgAlbumUpdate::OnSelectData() {
  const int row = GetCurSel(kData);
  if (row < 0 || row >= m_nCount) return;
  ShowPosition(*this, kPosition, row, m_nCount);
  m_strTextFile = ShowPoint(*this, kDataBoxes, m_aPacked, row).text_file;
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
