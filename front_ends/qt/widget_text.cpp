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

QString FromLines(const std::string& text) {
  QString lines = FromUtf8(text);
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  return lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

std::string ToLines(const QString& text) {
  QString lines = text;
  return ToUtf8(lines.replace(QLatin1Char('\n'), QLatin1String("\r\n")));
}

}  // namespace orreryui
