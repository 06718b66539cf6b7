// The front end that shows dialogs with Qt.
#ifndef ORRERYUI_FRONT_ENDS_QT_QT_FRONT_END_H_
#define ORRERYUI_FRONT_ENDS_QT_QT_FRONT_END_H_

#include <vector>

#include "platform/front_end.h"

class QWidget;

namespace orreryui {

// There must be a QApplication on the calling thread.
class QtFrontEnd : public FrontEnd {
 public:
  bool RunDialog(DialogSession& session) override;
  MessageBoxAnswer ShowMessage(const std::string& text) override;
  std::optional<std::string> ChooseFile(const FileChooserRequest& request) override;
  std::optional<std::uint32_t> ChooseColour(std::uint32_t start) override;
  void Beep() override;
  void WaitUntil(const std::function<bool()>& done) override;

 private:
  QWidget* Innermost() const { return open_.empty() ? nullptr : open_.back(); }

  std::vector<QWidget*> open_;  // the dialogs on the screen, outermost first
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_QT_FRONT_END_H_
