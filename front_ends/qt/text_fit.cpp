#include "front_ends/qt/text_fit.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace orreryui {
namespace {

// Lays out one paragraph, lines at most `width` pixels wide, and calls `line` for each.
template <typename Function>
void ForEachLine(const QString& paragraph, const QFont& font, qreal width, Function line) {
  QTextOption option;
  option.setWrapMode(WrapModeFor(paragraph));
  QTextLayout layout(paragraph, font);
  layout.setTextOption(option);
  layout.beginLayout();
  for (QTextLine next = layout.createLine(); next.isValid(); next = layout.createLine()) {
    next.setLineWidth(width);
    line(next);
  }
  layout.endLayout();
}

constexpr qreal kUnbounded = 1e6;

// Without the room that the font leaves around the first line and the last.
QSize LettersSize(const QString& text, const QFont& font) {
  return TextSize(text, font) - QSize(0, LineHeight(font) - LetterHeight(font));
}

// More characters than any label has room for.
constexpr qsizetype kMostShown = 2000;

// Letters that a line doesn't break behind, unless there is no other way.
bool IsOfAWord(QChar character) { return !character.isSpace() && character < QChar(0x2E80); }

QSize MeasuredSize(const QString& text, const QFont& font) {
  qreal width = 0;
  qreal height = 0;
  for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
    ForEachLine(paragraph, font, kUnbounded, [&](const QTextLine& line) {
      width = std::max(width, line.horizontalAdvance());
      height += std::max(line.height(), qreal(QFontMetrics(font).height()));
    });
  }
  return {int(std::ceil(width)), int(std::ceil(height))};
}

// Dialogs ask for the same texts each time they open, and shaping a text costs more than drawing
// it. Their fonts are few, and telling whether two are the same is quicker than hashing one.
QHash<QString, QSize>& KnownSizes(const QFont& font) {
  constexpr std::size_t kMostFonts = 8;
  // Kept for ever: nothing of Qt may be touched while the process ends.
  static auto& known = *new std::vector<std::pair<QFont, QHash<QString, QSize>>>;
  const auto same =
      std::find_if(known.begin(), known.end(), [&](const auto& one) { return one.first == font; });
  if (same != known.end()) return same->second;
  if (known.size() >= kMostFonts) known.clear();
  return known.emplace_back(font, QHash<QString, QSize>()).second;
}

}  // namespace

QTextOption::WrapMode WrapModeFor(const QString& text) {
  constexpr int kLongestWord = 500;
  int length = 0;
  for (const QChar character : text) {
    length = IsOfAWord(character) ? length + 1 : 0;
    if (length > kLongestWord) return QTextOption::WrapAnywhere;
  }
  return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

QString CutDown(const QString& text) {
  if (text.size() <= kMostShown) return text;
  return text.left(kMostShown / 2) + QChar(0x2026) + text.right(kMostShown / 2);
}

QString BreakLines(const QString& text, const QFont& font, int width) {
  const bool is_one_line = !text.contains(QLatin1Char('\n'));
  if (is_one_line && TextSize(text, font).width() <= width) return text;
  static const QRegularExpression kGap(QStringLiteral("\\s{2,}"));
  QStringList lines;
  for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
    if (TextSize(paragraph, font).width() <= width) {
      lines << paragraph;
      continue;
    }
    // A gap of several blanks is where the author of the text means it to break.
    for (const QString& part : paragraph.split(kGap, Qt::SkipEmptyParts)) {
      ForEachLine(part, font, width, [&](const QTextLine& line) {
        lines << part.mid(line.textStart(), line.textLength()).trimmed();
      });
    }
  }
  return lines.join(QLatin1Char('\n'));
}

QSize TextSize(const QString& text, const QFont& font) {
  constexpr int kLongest = 200;
  constexpr int kMostTexts = 2000;
  if (text.size() > kLongest) return MeasuredSize(text, font);
  QHash<QString, QSize>& known = KnownSizes(font);
  const auto found = known.constFind(text);
  if (found != known.cend()) return *found;
  if (known.size() >= kMostTexts) known.clear();
  return *known.insert(text, MeasuredSize(text, font));
}

int LineHeight(const QFont& font) { return TextSize(QStringLiteral("漢あAg"), font).height(); }

int LetterHeight(const QFont& font) {
  constexpr double kOfEm = 1.1;
  return std::min(int(QFontInfo(font).pixelSize() * kOfEm), LineHeight(font));
}

QSize NeededSize(const QString& text, const QFont& font, QSize offered) {
  if (text.isEmpty()) return offered;
  if (text.size() > kMostShown) return {offered.width() + 1, offered.height()};
  const QSize whole = TextSize(text, font);
  if (whole.boundedTo(offered) == whole) return offered;
  const QSize plain = LettersSize(text, font);
  if (plain.width() <= offered.width()) return offered.expandedTo({0, plain.height()});
  const bool room_for_more = offered.height() >= plain.height() + LineHeight(font);
  if (room_for_more) {
    const QSize broken = LettersSize(BreakLines(text, font, offered.width()), font);
    if (broken.width() <= offered.width() && broken.height() <= offered.height()) return offered;
    return {offered.width() + 1, offered.height()};
  }
  return offered.expandedTo(plain);
}

QString Shortened(const QString& text, const QFont& font, QSize size) {
  QStringList lines = BreakLines(CutDown(text), font, size.width()).split(QLatin1Char('\n'));
  const int height = size.height() + LineHeight(font) - LetterHeight(font);
  const qsizetype last = std::max(1, height / LineHeight(font)) - 1;
  if (last + 1 >= lines.size()) return lines.join(QLatin1Char('\n'));
  const QString rest = lines.mid(last).join(QString());
  lines.resize(last);
  lines << QFontMetrics(font).elidedText(rest, Qt::ElideMiddle, size.width());
  return lines.join(QLatin1Char('\n'));
}

}  // namespace orreryui
