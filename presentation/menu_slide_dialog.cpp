#include "presentation/menu_slide_dialog.h"

#include "presentation/interval.h"
#include "templates/menu_slide.h"

namespace orreryui {

using namespace menu_slide;

namespace {

constexpr int kShortest = 2;
constexpr int kMenuCount = static_cast<int>(kMenus);

}  // namespace

std::span<const Message<CDlgMenuSlide>> CDlgMenuSlide::Messages() {
  static constexpr Message<CDlgMenuSlide> kMessages[] = {
      {kFirstMenu, kFirstMenu + kMenuCount - 1, Event::kClick, &CDlgMenuSlide::OnToggleMenu},
      {kAll, Event::kClick, &CDlgMenuSlide::OnAllMenus},
      {kAutomatic, Event::kClick, &CDlgMenuSlide::OnAutomatic},
      {kManual, Event::kClick, &CDlgMenuSlide::OnManual},
      {kLonger, Event::kClick, &CDlgMenuSlide::OnLonger},
      {kShorter, Event::kClick, &CDlgMenuSlide::OnShorter},
  };
  return kMessages;
}

CDlgMenuSlide::CDlgMenuSlide() : DialogWithMessages(kTemplate) {}

void CDlgMenuSlide::OnInitDialog() {
  ShowCounts();
  CheckRadioButton(kAutomatic, kManual, m_strDisplay == "AUTO" ? kAutomatic : kManual);
  SetDlgItemInt(kInterval, m_nInterval);
}

void CDlgMenuSlide::ShowCounts() {
  int id = kFirstCount;
  for (const auto& count : CountMenuFiles(m_strFolder)) {
    if (count) SetDlgItemInt(id, *count);
    ++id;
  }
}

void CDlgMenuSlide::OnToggleMenu(int id) {
  int& chosen = m_aChosen[static_cast<std::size_t>(id - kFirstMenu)];
  chosen = 1 - chosen;
}

// The single choices stay as they are, and come back to their boxes.
void CDlgMenuSlide::OnAllMenus() {
  m_bAll = 1 - m_bAll;
  int id = kFirstMenu;
  for (const int chosen : m_aChosen) CheckDlgButton(id++, m_bAll == 1 || chosen == 1);
}

void CDlgMenuSlide::OnAutomatic() { m_strDisplay = "AUTO"; }

void CDlgMenuSlide::OnManual() { m_strDisplay = "MANUAL"; }

void CDlgMenuSlide::OnLonger() {
  m_nInterval = Longer(m_nInterval);
  SetDlgItemInt(kInterval, m_nInterval);
}

void CDlgMenuSlide::OnShorter() {
  m_nInterval = Shorter(m_nInterval, kShortest);
  SetDlgItemInt(kInterval, m_nInterval);
}

}  // namespace orreryui
