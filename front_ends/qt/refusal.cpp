#include "front_ends/qt/refusal.h"

#include <QApplication>
#include <QToolTip>
#include <algorithm>

#include "front_ends/qt/widget_text.h"

namespace orreryui {

void TellRefusal(QWidget& box, const std::string& refused) {
  if (refused.empty()) return;
  QApplication::beep();
  const QString text = QStringLiteral("この文字は使えません: %1").arg(FromUtf8(refused));
  QToolTip::showText(box.mapToGlobal(QPoint(0, box.height())), text.toHtmlEscaped(), &box);
}

TextChange SmallestChange(const QString& from, const QString& to, int cursor) {
  const int shorter = int(std::min(from.size(), to.size()));
  const int most_behind = std::min(shorter, int(from.size()) - cursor);
  int behind = 0;
  while (behind < most_behind && from[from.size() - 1 - behind] == to[to.size() - 1 - behind]) {
    ++behind;
  }
  int before = 0;
  while (before < shorter - behind && from[before] == to[before]) ++before;
  return {before, int(from.size()) - before - behind, to.mid(before, to.size() - before - behind)};
}

}  // namespace orreryui
