// Text on its way between the seam and the widgets.
#ifndef ORRERYUI_FRONT_ENDS_QT_WIDGET_TEXT_H_
#define ORRERYUI_FRONT_ENDS_QT_WIDGET_TEXT_H_

#include <QString>
#include <string>

namespace orreryui {

QString FromUtf8(const std::string& text);
std::string ToUtf8(const QString& text);

// A label in which & is an ordinary character, for widgets that would take it as a mnemonic.
QString Literal(const QString& label);

// A window's title in which [*] is ordinary text, where Qt would take it as a mark for changes.
QString LiteralTitle(const QString& title);

// The text of a multi-line edit: LF inside the widget, CR LF in the model.
QString FromLines(const std::string& text);
std::string ToLines(const QString& text);

// Between a place in a text of the seam, in units of UTF-16, and the same place in FromLines of it.
int PlaceInLines(const std::string& text, int place);
int PlaceOfLines(const std::string& text, int place_in_lines);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_WIDGET_TEXT_H_
