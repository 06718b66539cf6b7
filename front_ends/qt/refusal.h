// What the user gets to see of a character that a box doesn't take.
#ifndef ORRERYUI_FRONT_ENDS_QT_REFUSAL_H_
#define ORRERYUI_FRONT_ENDS_QT_REFUSAL_H_

#include <QWidget>
#include <string>

namespace orreryui {

// Beeps and names the characters in a tool tip at the box. Does nothing if `refused` is empty.
void TellRefusal(QWidget& box, const std::string& refused);

// One replacement in a text.
struct TextChange {
  int begin = 0;
  int length = 0;  // of what is replaced
  QString with;
};

// The smallest replacement that turns `from` into `to`. Of several that are equally small it is
// the one nearest before `cursor`, where the user has just typed.
TextChange SmallestChange(const QString& from, const QString& to, int cursor);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_REFUSAL_H_
