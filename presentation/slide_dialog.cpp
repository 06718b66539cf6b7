#include "presentation/slide_dialog.h"

#include "presentation/interval.h"
#include "templates/slide.h"

namespace orreryui {

using namespace slide;

namespace {

constexpr int kShortest = 1;

// A check box and its field. The box is on while the field is `on`; a click makes `from` into `to`,
// and any other value into `from`.
struct Toggle {
  int id;
  CString CDlgSlide::*field;
  const char* on;
  const char* from;
  const char* to;
};

constexpr Toggle kToggles[] = {
    {kRemaining, &CDlgSlide::m_strRemaining, "on", "off", "on"},
    {kMemo, &CDlgSlide::m_strMemo, "ON", "ON", "OFF"},
    {kWithoutJpeg, &CDlgSlide::m_strJpeg, "off", "off", "on"},
    {kPositionMap, &CDlgSlide::m_strPositionMap, "on", "off", "on"},
};

}  // namespace

std::span<const Message<CDlgSlide>> CDlgSlide::Messages() {
  static constexpr Message<CDlgSlide> kMessages[] = {
      {kText, kBoth, Event::kClick, &CDlgSlide::OnChooseContent},
      {kAutomatic, kManual, Event::kClick, &CDlgSlide::OnChooseMethod},
      {kLarge, kSmall, Event::kClick, &CDlgSlide::OnChooseMapSize},
      {kRemaining, Event::kClick, &CDlgSlide::OnToggle},
      {kMemo, Event::kClick, &CDlgSlide::OnToggle},
      {kWithoutJpeg, Event::kClick, &CDlgSlide::OnToggle},
      {kPositionMap, Event::kClick, &CDlgSlide::OnToggle},
      {kLonger, Event::kClick, &CDlgSlide::OnLonger},
      {kShorter, Event::kClick, &CDlgSlide::OnShorter},
  };
  return kMessages;
}

CDlgSlide::CDlgSlide() : DialogWithMessages(kTemplate) {}

void CDlgSlide::OnInitDialog() {
  CheckDlgButton(kText, m_nContent == 1);
  CheckDlgButton(kPicture, m_nContent == 2);
  CheckDlgButton(kBoth, m_nContent == 3);
  CheckRadioButton(kAutomatic, kManual, m_strMethod == "AUTO" ? kAutomatic : kManual);
  CheckRadioButton(kLarge, kSmall, m_nMapSize == 1 ? kLarge : kSmall);
  for (const Toggle& box : kToggles) CheckDlgButton(box.id, this->*box.field == box.on);
  SetDlgItemInt(kInterval, m_nInterval);
}

void CDlgSlide::OnChooseContent(int id) { m_nContent = id - kText + 1; }

void CDlgSlide::OnChooseMethod(int id) { m_strMethod = id == kAutomatic ? "AUTO" : "MANUAL"; }

void CDlgSlide::OnChooseMapSize(int id) { m_nMapSize = id - kLarge + 1; }

void CDlgSlide::OnToggle(int id) {
  for (const Toggle& box : kToggles) {
    if (box.id != id) continue;
    CString& field = this->*box.field;
    field = field == box.from ? box.to : box.from;
    CheckDlgButton(id, field == box.on);
  }
}

void CDlgSlide::OnLonger() {
  m_nInterval = Longer(m_nInterval);
  SetDlgItemInt(kInterval, m_nInterval);
}

void CDlgSlide::OnShorter() {
  m_nInterval = Shorter(m_nInterval, kShortest);
  SetDlgItemInt(kInterval, m_nInterval);
}

}  // namespace orreryui
