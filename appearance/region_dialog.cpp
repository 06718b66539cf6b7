#include "appearance/region_dialog.h"

#include <algorithm>
#include <numeric>

#include "templates/region.h"

namespace orreryui {

using namespace region;

namespace {

std::size_t SlotOf(int id) { return static_cast<std::size_t>(id - kWhole); }

}  // namespace

void ClickSlot(RegionState& state, std::size_t slot, bool single) {
  const auto prefectures = std::span(state).subspan(1);
  state[0] = 0;
  if (single) std::ranges::fill(prefectures, 0);
  state[slot] = state[slot] == 0 ? 1 : 0;
  if (std::accumulate(prefectures.begin(), prefectures.end(), 0LL) == 0) state[0] = 1;
}

std::span<const Message<CDlgRegion>> CDlgRegion::Messages() {
  static constexpr Message<CDlgRegion> kMessages[] = {
      {kWhole, kLastPrefecture, Event::kClick, &CDlgRegion::OnSlot},
  };
  return kMessages;
}

CDlgRegion::CDlgRegion() : DialogWithMessages(kTemplate) {}

void CDlgRegion::OnInitDialog() {
  if (m_nSingle == 1) {
    SetWindowText(" 都道府県別地図"_sj);
    SetDlgItemText(kWhole, "日本列島"_sj);
    SetDlgItemText(kSeveralNote, "");
    SetDlgItemText(kNote, "いずれかの都道府県か日本列島を\n選んでください！"_sj);
  }
  ShowState();
}

void CDlgRegion::OnSlot(int id) {
  ClickSlot(m_nState, SlotOf(id), m_nSingle == 1);
  ShowState();
}

void CDlgRegion::ShowState() {
  const bool whole = m_nState[0] == 1;
  if (whole) std::fill(m_nState.begin() + 1, m_nState.end(), 0);
  for (int id = kWhole; id <= kLastPrefecture; ++id) CheckDlgButton(id, m_nState[SlotOf(id)] == 1);
}

}  // namespace orreryui
