// How much room a text takes, and where it breaks to fit a width.
#ifndef ORRERYUI_FRONT_ENDS_QT_TEXT_FIT_H_
#define ORRERYUI_FRONT_ENDS_QT_TEXT_FIT_H_

#include <QFont>
#include <QSize>
#include <QString>
#include <QTextOption>

namespace orreryui {

// How lines of `text` are to break: between words, unless one is so long that Qt, which looks for
// the end of a word from each line of it anew, would take minutes.
QTextOption::WrapMode WrapModeFor(const QString& text);

// The beginning and the end of a text that is longer than anybody reads in a label or a tool tip;
// the text itself if it isn't.
QString CutDown(const QString& text);

// `text` with line feeds put in where a line would be wider than `width` pixels. Line feeds that
// it has stay; blanks around a new break go.
QString BreakLines(const QString& text, const QFont& font, int width);

// The room in pixels that `text` takes with the breaks it has, Japanese glyphs included.
QSize TextSize(const QString& text, const QFont& font);

// The height in pixels of a line that holds Latin and Japanese letters.
int LineHeight(const QFont& font);

// The height in pixels of the letters in such a line, Latin and Japanese: fonts for both leave more
// above and below them than a label needs.
int LetterHeight(const QFont& font);

// The size of a rectangle that `text` would need, given a rectangle of size `offered`: `offered`
// itself if the text fits, breaking lines as far as there is height for them; otherwise a size
// that is larger in the direction that would help.
QSize NeededSize(const QString& text, const QFont& font, QSize offered);

// What can be shown of a text that `size` can't hold: as many lines as there is height for, one at
// least, with an ellipsis in the middle of the last one, so that a path keeps its file's name.
QString Shortened(const QString& text, const QFont& font, QSize size);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_TEXT_FIT_H_
