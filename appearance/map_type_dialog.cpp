#include "appearance/map_type_dialog.h"

#include "appearance/palette_list.h"
#include "appearance/region_dialog.h"
#include "templates/map_type.h"

namespace orreryui {

using namespace map_type;

namespace {

constexpr int kTopographicMap = 1;
constexpr int kArchipelagoMap = 2;
constexpr int kPrefectureMap = 3;

constexpr int kNoRow = -1;
constexpr int kSanson = 0;
constexpr int kEquirectangular = 1;

}  // namespace

std::span<const Message<CDlgMapType>> CDlgMapType::Messages() {
  static constexpr Message<CDlgMapType> kMessages[] = {
      {kTopographic, Event::kClick, &CDlgMapType::OnTopographic},
      {kArchipelago, Event::kClick, &CDlgMapType::OnArchipelago},
      {kPrefectures, Event::kClick, &CDlgMapType::OnPrefectures},
      {kBlank, Event::kClick, &CDlgMapType::OnBlank},
      {kTint, Event::kClick, &CDlgMapType::OnTint},
      {kPalette, Event::kSelectionChange, &CDlgMapType::OnSelectPalette},
      {kMethod, Event::kSelectionChange, &CDlgMapType::OnSelectMethod},
      {kCoastline, Event::kSelectionChange, &CDlgMapType::OnSelectCoastline},
      {kPrefProjection, Event::kSelectionChange, &CDlgMapType::OnSelectPrefProjection},
      {kJapanProjection, Event::kSelectionChange, &CDlgMapType::OnSelectJapanProjection},
  };
  return kMessages;
}

CDlgMapType::CDlgMapType() : DialogWithMessages(kTemplate) {}

void CDlgMapType::OnInitDialog() {
  for (const PaletteEntry& entry : ReadPaletteList(m_strDir, kAllPalettes).entries) {
    AddString(kPalette, entry.name);
  }
  if (m_nTint == 1) SetCurSel(kPalette, m_nPalette);
  SetCurSel(kMethod, m_nMethod);
  if (m_nTint == 0) ShowBlankTexts();
  SetCurSel(kPrefProjection, m_nPrefProjection);
  SetCurSel(kJapanProjection, m_nJapanProjection);
  ShowKind();
  ShowFill();
  ShowCoastline();
}

void CDlgMapType::OnTopographic() {
  m_nMapKind = kTopographicMap;
  ShowCoastline();
}

void CDlgMapType::OnArchipelago() {
  m_nMapKind = kArchipelagoMap;
  BecomeBlank();
  ShowCoastline();
}

void CDlgMapType::OnPrefectures() {
  const Region given = DecodeRegion(m_strRegion);
  CDlgRegion dialog;
  dialog.m_nState = given.state;
  dialog.m_nSingle = given.single ? 1 : 0;
  if (dialog.DoModal() != IDOK) return ShowKind();
  m_strRegion = EncodeRegion(dialog.m_nState);
  m_nMapKind = kPrefectureMap;
  ShowCoastline();
  if (m_nTint == 1) m_nPrefProjection = kEquirectangular;
  EndDialog(IDOK);
}

void CDlgMapType::OnBlank() {
  BecomeBlank();
  ShowCoastline();
}

void CDlgMapType::OnTint() {
  if (m_nMapKind == kArchipelagoMap) {
    m_nTint = 0;
    ShowFill();
    return ShowCoastline();
  }
  if (m_nMapKind == kPrefectureMap) {
    m_nPrefProjection = kEquirectangular;
    SetCurSel(kPrefProjection, m_nPrefProjection);
  }
  if (m_nTint == 0) {
    SetCurSel(kMethod, m_nMethod);
    SetCurSel(kPalette, m_nPalette);
  }
  m_nTint = 1;
  const int colour = m_nMapKind == kTopographicMap ? m_nCoastTopo : m_nCoastPref;
  SetCurSel(kCoastline, m_nCoastOnTint == 1 ? colour : kNoRow);
}

void CDlgMapType::OnSelectPalette() {
  m_nPalette = GetCurSel(kPalette);
  if (m_nTint != 0) return;
  m_nTint = 1;
  ShowFill();
  SetCurSel(kMethod, m_nMethod);
}

void CDlgMapType::OnSelectMethod() { m_nMethod = GetCurSel(kMethod); }

void CDlgMapType::OnSelectCoastline() {
  if (const auto field = CoastlineOf(*this)) this->*field = GetCurSel(kCoastline);
  ShowCoastline();
}

void CDlgMapType::OnSelectPrefProjection() {
  m_nPrefProjection = GetCurSel(kPrefProjection);
  const bool sanson = m_nMapKind == kPrefectureMap && m_nPrefProjection == kSanson;
  if (sanson && m_nTint == 1) BecomeBlank();
}

void CDlgMapType::OnSelectJapanProjection() { m_nJapanProjection = GetCurSel(kJapanProjection); }

void CDlgMapType::BecomeBlank() {
  if (m_nTint == 1) ShowBlankTexts();
  m_nTint = 0;
  ShowFill();
}

void CDlgMapType::ShowKind() {
  CheckRadioButton(kTopographic, kPrefectures, kTopographic + m_nMapKind - kTopographicMap);
}

void CDlgMapType::ShowFill() { CheckRadioButton(kBlank, kTint, m_nTint == 0 ? kBlank : kTint); }

void CDlgMapType::ShowBlankTexts() {
  SetDlgItemText(kPalette, "白地図"_sj);
  SetDlgItemText(kMethod, "");
}

void CDlgMapType::ShowCoastline() {
  const auto field = CoastlineOf(*this);
  SetCurSel(kCoastline, field ? this->*field : kNoRow);
}

}  // namespace orreryui
