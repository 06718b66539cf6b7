// Watches the widgets of a dialog for what doesn't belong to one kind of control: the input focus,
// Enter and Esc, and texts that an input method is composing.
#ifndef ORRERYUI_FRONT_ENDS_QT_INPUT_FILTER_H_
#define ORRERYUI_FRONT_ENDS_QT_INPUT_FILTER_H_

#include <QHash>
#include <QKeyEvent>
#include <QObject>
#include <QWidget>

#include "front_ends/qt/gesture_runner.h"

namespace orreryui {

class InputFilter : public QObject {
 public:
  explicit InputFilter(GestureRunner& runner);

  // `enter_breaks_lines`: Enter belongs to the widget.
  void Watch(QWidget* widget, int index, int id, bool enter_breaks_lines);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Watched {
    int index = 0;
    int id = 0;
    bool enter_breaks_lines = false;
    bool composing = false;  // an input method shows text that isn't committed yet
  };

  bool TakesKey(const Watched& widget, const QKeyEvent& key) const;
  void ReportFocus(const Watched& widget, const QFocusEvent& focus);

  GestureRunner& runner_;
  QHash<QObject*, Watched> widgets_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_INPUT_FILTER_H_
