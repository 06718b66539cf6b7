// Keeps the user's input from every window of the program while an object of this class lives.
#ifndef ORRERYUI_FRONT_ENDS_QT_INPUT_BLOCK_H_
#define ORRERYUI_FRONT_ENDS_QT_INPUT_BLOCK_H_

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace orreryui {

// Windows go on painting themselves. What is typed and clicked is dropped, not kept for later. The
// dialogs are greyed meanwhile.
class InputBlock : public QObject {
 public:
  // `front` is the innermost dialog, or null.
  explicit InputBlock(QWidget* front);
  ~InputBlock() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QList<QPointer<QWidget>> veils_;
  bool quits_ = false;  // the program quits, which needs its windows closed
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_INPUT_BLOCK_H_
