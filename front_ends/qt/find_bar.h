// The strip below a long text in which the user says what to look for. Enter looks for the next
// place, Shift and Enter for the one before, Esc closes the strip. It isn't a control of a dialog.
#ifndef ORRERYUI_FRONT_ENDS_QT_FIND_BAR_H_
#define ORRERYUI_FRONT_ENDS_QT_FIND_BAR_H_

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <functional>

namespace orreryui {

class FindBar : public QWidget {
 public:
  enum class Way { kHere, kNext, kPrevious };  // from the place that was found last

  explicit FindBar(QWidget* parent);

  std::function<bool(const QString& wanted, Way way)> on_find;  // whether it was found
  std::function<void()> on_close;

  // Comes to the screen and takes the focus.
  void Open();

  // Nothing happens while nothing is typed.
  void Find(Way way);

  // The widget that takes the focus.
  QLineEdit* line() const { return line_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QToolButton* AddButton(const QString& name, const std::function<void()>& press);

  QLineEdit* line_;
  QLabel* answer_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_FIND_BAR_H_
