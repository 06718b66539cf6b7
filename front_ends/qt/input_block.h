// Keeps the user's input from every window of the program while an object of this class lives.
#ifndef ORRERYUI_FRONT_ENDS_QT_INPUT_BLOCK_H_
#define ORRERYUI_FRONT_ENDS_QT_INPUT_BLOCK_H_

#include <QObject>

namespace orreryui {

// Windows go on painting themselves. What is typed and clicked is dropped, not kept for later.
class InputBlock : public QObject {
 public:
  InputBlock();
  ~InputBlock() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool quits_ = false;  // the program quits, which needs its windows closed
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_INPUT_BLOCK_H_
