#include "front_ends/qt/widget_text.h"

namespace orreryui {

QString FromUtf8(const std::string& text) { return QString::fromStdString(text); }

std::string ToUtf8(const QString& text) { return text.toStdString(); }

QString Literal(const QString& label) {
  QString literal = label;
  return literal.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString LiteralTitle(const QString& title) {
  QString literal = title;
  return literal.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

namespace {

QString WithLineFeeds(QString lines) {
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  return lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

}  // namespace

QString FromLines(const std::string& text) { return WithLineFeeds(FromUtf8(text)); }

int PlaceInLines(const std::string& text, int place) {
  return int(WithLineFeeds(FromUtf8(text).left(place)).size());
}

int PlaceOfLines(const std::string& text, int place_in_lines) {
  const QString whole = FromUtf8(text);
  qsizetype place = 0;
  for (int passed = 0; passed < place_in_lines && place < whole.size(); ++passed) {
    place += QStringView(whole).mid(place).startsWith(QLatin1String("\r\n")) ? 2 : 1;
  }
  return int(place);
}

std::string ToLines(const QString& text) {
  QString lines = text;
  return ToUtf8(lines.replace(QLatin1Char('\n'), QLatin1String("\r\n")));
}

}  // namespace orreryui
