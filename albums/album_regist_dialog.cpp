#include "albums/album_regist_dialog.h"

#include "albums/text_preview.h"
#include "frame/choose_open_file.h"
#include "points/album_file.h"
#include "templates/album_regist.h"

namespace orreryui {

using namespace album_regist;

namespace {

constexpr int kGivenUp = -1;

// The boxes of the data line that comes next.
constexpr int kDataBoxes[] = {kMemo1, kMemo2, kTextFile, kPictureFile};

struct BoundBox {
  int id;
  CString CDlgAlbumRegist::*field;
};

constexpr BoundBox kBoundBoxes[] = {
    {kPlace, &CDlgAlbumRegist::m_strPlace},
    {kItem, &CDlgAlbumRegist::m_strItem},
    {kLatitude, &CDlgAlbumRegist::m_strLatitude},
    {kLongitude, &CDlgAlbumRegist::m_strLongitude},
    {kMemo1, &CDlgAlbumRegist::m_strMemo1},
    {kMemo2, &CDlgAlbumRegist::m_strMemo2},
    {kTextFile, &CDlgAlbumRegist::m_strTextFile},
    {kPictureFile, &CDlgAlbumRegist::m_strPictureFile},
};

}  // namespace

std::span<const Message<CDlgAlbumRegist>> CDlgAlbumRegist::Messages() {
  static constexpr Message<CDlgAlbumRegist> kMessages[] = {
      {kPlace, Event::kFocusLost, &CDlgAlbumRegist::OnLeaveBox},
      {kItem, Event::kFocusLost, &CDlgAlbumRegist::OnLeaveBox},
      {kLatitude, Event::kFocusLost, &CDlgAlbumRegist::OnLeaveBox},
      {kLongitude, Event::kFocusLost, &CDlgAlbumRegist::OnLeaveBox},
      {kMemo1, Event::kFocusLost, &CDlgAlbumRegist::OnLeaveBox},
      {kMemo2, Event::kFocusLost, &CDlgAlbumRegist::OnLeaveBox},
      {kTextFile, Event::kFocusLost, &CDlgAlbumRegist::OnLeaveBox},
      {kPictureFile, Event::kFocusLost, &CDlgAlbumRegist::OnLeaveBox},
      {kChooseTextFile, Event::kClick, &CDlgAlbumRegist::OnChooseTextFile},
      {kChoosePicture, Event::kClick, &CDlgAlbumRegist::OnChoosePicture},
      {kPreviewText, Event::kClick, &CDlgAlbumRegist::OnPreviewText},
      {kAddData, Event::kClick, &CDlgAlbumRegist::OnAddData},
      {kCancel, Event::kClick, &CDlgAlbumRegist::OnGiveUp},
  };
  return kMessages;
}

CDlgAlbumRegist::CDlgAlbumRegist() : DialogWithMessages(kTemplate) {}

void CDlgAlbumRegist::OnInitDialog() {
  SetDlgItemText(kLatitude, m_strLatitude);
  SetDlgItemText(kLongitude, m_strLongitude);
  SetDlgItemText(kAlbumNo, m_strAlbumNo);
  m_nDataNo = 1;
  SetDlgItemInt(kDataNo, m_nDataNo);
}

void CDlgAlbumRegist::OnLeaveBox(int id) {
  for (const BoundBox& box : kBoundBoxes) {
    if (box.id == id) this->*box.field = GetDlgItemText(id);
  }
}

void CDlgAlbumRegist::OnAddData() {
  for (const int id : kDataBoxes) OnLeaveBox(id);
  if (LacksAPart()) return;
  const DataLine data = {.place = m_strMemo1,
                         .latitude = m_strLatitude,
                         .longitude = m_strLongitude,
                         .item = m_strMemo2,
                         .text_file = m_strTextFile,
                         .picture = m_strPictureFile};
  if (!AppendAlbumLine(m_strAlbumFile, m_nDataNo == 1, data)) return;
  for (const int id : kDataBoxes) SetDlgItemText(id, "");
  SetDlgItemInt(kDataNo, ++m_nDataNo);
}

// The second memo and one of the two files may be left out.
bool CDlgAlbumRegist::LacksAPart() const {
  return m_strPlace.IsEmpty() || m_strMemo1.IsEmpty() ||
         (m_strTextFile.IsEmpty() && m_strPictureFile.IsEmpty());
}

// A new point's files are mostly beside its album.
const CString& CDlgAlbumRegist::StartOfChooser(const CString& file) const {
  return file.IsEmpty() ? m_strAlbumFile : file;
}

// Giving up empties the box.
void CDlgAlbumRegist::OnChooseTextFile() {
  m_strTextFile =
      ChooseOpenFile("txt", "*.txt", "地点 files (*.txt)|*.txt"_sj, StartOfChooser(m_strTextFile));
  SetDlgItemText(kTextFile, m_strTextFile);
}

// Giving up leaves the box alone.
void CDlgAlbumRegist::OnChoosePicture() {
  const CString path = ChooseOpenFile("bmp", "*.bmp", "画像 files (*.bmp)|*.bmp"_sj,
                                      StartOfChooser(m_strPictureFile));
  if (path.IsEmpty()) return;
  m_strPictureFile = path;
  SetDlgItemText(kPictureFile, m_strPictureFile);
}

void CDlgAlbumRegist::OnPreviewText() { PreviewText(m_strTextFile); }

void CDlgAlbumRegist::OnGiveUp() { EndDialog(kGivenUp); }

}  // namespace orreryui
