// Dialog units and pixels.
#ifndef ORRERYUI_FRONT_ENDS_QT_DIALOG_SCALE_H_
#define ORRERYUI_FRONT_ENDS_QT_DIALOG_SCALE_H_

#include <QFont>
#include <QRect>

#include "platform/front_end.h"

namespace orreryui {

// Pixels a dialog unit, across and down. One scale holds for a whole dialog, so that its parts keep
// their proportions.
struct DialogScale {
  double x = 0;
  double y = 0;

  // The font's own scale: a full-width character is at most 8 units wide, a line 8 units high.
  static DialogScale Of(const QFont& font);

  // The same, less high where a dialog wouldn't fit into `room`, if that can be had without cutting
  // letters.
  DialogScale LowFor(const DialogLayout& layout, QSize room, const QFont& font) const;

  // The scale beyond which texts are cut instead of growing the dialog: a dialog that fits into
  // `room` at this scale still does so then.
  DialogScale MostFor(const DialogLayout& layout, QSize room) const;

  QPoint ToPixels(int x_units, int y_units) const;
  QRect ToPixels(const DialogRect& place) const;
  QPoint ToUnits(QSize pixels) const;  // rounded down
  bool operator==(const DialogScale&) const = default;

  int ColumnToPixels(int width) const;  // width of a list's column at scale 1
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_DIALOG_SCALE_H_
