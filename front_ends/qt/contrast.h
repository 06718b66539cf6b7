// How well colours are told apart.
#ifndef ORRERYUI_FRONT_ENDS_QT_CONTRAST_H_
#define ORRERYUI_FRONT_ENDS_QT_CONTRAST_H_

#include <QColor>

namespace orreryui {

// From 1, for colours of one luminance, to 21, for black and white.
double Contrast(const QColor& a, const QColor& b);

// The colour nearest to `wanted`, lighter or darker, that has this contrast to `from`. Black or
// white, whichever is further from it, where none has.
QColor Apart(const QColor& wanted, const QColor& from, double contrast);

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_CONTRAST_H_
