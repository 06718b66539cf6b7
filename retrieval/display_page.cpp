#include "retrieval/display_page.h"

#include <algorithm>

#include "templates/display_page.h"

namespace orreryui {

using namespace display_page;

namespace {

// The buttons of a group in the order of the values that they stand for.
constexpr int kNameDisplays[] = {kNowhere, kDetailMap, kDetailAndWideMap, kEnlargedMap};
constexpr int kCharSizes[] = {kSmall, kMedium, kLarge};

int ValueOf(std::span<const int> buttons, int id) {
  return static_cast<int>(std::ranges::find(buttons, id) - buttons.begin());
}

}  // namespace

std::span<const Message<CDlgGnpfDisplay>> CDlgGnpfDisplay::Messages() {
  static constexpr Message<CDlgGnpfDisplay> kMessages[] = {
      {kNowhere, kEnlargedMap, Event::kClick, &CDlgGnpfDisplay::OnNameDisplay},
      {kLarge, kSmall, Event::kClick, &CDlgGnpfDisplay::OnCharSize},
  };
  return kMessages;
}

CDlgGnpfDisplay::CDlgGnpfDisplay() : DialogWithMessages(kTemplate) {}

void CDlgGnpfDisplay::OnInitDialog() {
  for (const int id : kNameDisplays)
    CheckDlgButton(id, ValueOf(kNameDisplays, id) == m_nNameDisplay);
  for (const int id : kCharSizes) CheckDlgButton(id, ValueOf(kCharSizes, id) == m_nCharSize);
}

void CDlgGnpfDisplay::OnNameDisplay(int id) { m_nNameDisplay = ValueOf(kNameDisplays, id); }

void CDlgGnpfDisplay::OnCharSize(int id) { m_nCharSize = ValueOf(kCharSizes, id); }

}  // namespace orreryui
