// The front end that shows dialogs with Qt.
#ifndef ORRERYUI_FRONT_ENDS_QT_QT_FRONT_END_H_
#define ORRERYUI_FRONT_ENDS_QT_QT_FRONT_END_H_

#include "platform/front_end.h"

class QWidget;

namespace orreryui {

// Where there is no QApplication on the calling thread, and where something is thrown, the user has
// given up.
class QtFrontEnd : public FrontEnd {
 public:
  bool RunDialog(DialogSession& session) override;
  MessageBoxAnswer ShowMessage(const std::string& text) override;
  std::optional<std::string> ChooseFile(const FileChooserRequest& request) override;
  std::optional<std::uint32_t> ChooseColour(std::uint32_t start) override;
  void Beep() override;
  void WaitUntil(const std::function<bool()>& done) override;

 private:
  QWidget* innermost_ = nullptr;  // of the dialogs on the screen
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_QT_FRONT_END_H_
