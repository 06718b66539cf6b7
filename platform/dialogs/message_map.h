// Message maps: the table that says which handler of a dialog answers which event of which control.
#ifndef ORRERYUI_PLATFORM_DIALOGS_MESSAGE_MAP_H_
#define ORRERYUI_PLATFORM_DIALOGS_MESSAGE_MAP_H_

namespace orreryui {

enum class Event {
  kClick,            // push buttons, radio buttons, check boxes
  kFocusLost,        // the focus went to another control
  kChange,           // the user changed the text of an edit or of a combo box's edit field
  kSelectionChange,  // the user picked a row
  kDoubleClick,      // on a row
  kTabChanging,      // the tab is about to change; the old one is still selected
  kTabChanged,
};

// One row of the message map of the dialog class D: a control, or the controls with the numbers
// from `first` to `last`. A handler that serves several controls learns the number.
template <class D>
class Message {
 public:
  constexpr Message(int id, Event event, void (D::*handler)())
      : first_(id), last_(id), event_(event), handler_(handler) {}
  constexpr Message(int id, Event event, void (D::*handler)(int id))
      : first_(id), last_(id), event_(event), range_handler_(handler) {}
  constexpr Message(int first, int last, Event event, void (D::*handler)(int id))
      : first_(first), last_(last), event_(event), range_handler_(handler) {}

  constexpr int First() const { return first_; }
  constexpr int Last() const { return last_; }

  constexpr bool Matches(int id, Event event) const {
    return event == event_ && id >= first_ && id <= last_;
  }

  void Send(D& dialog, int id) const {
    if (handler_) {
      (dialog.*handler_)();
    } else {
      (dialog.*range_handler_)(id);
    }
  }

 private:
  int first_;
  int last_;
  Event event_;
  void (D::*handler_)() = nullptr;
  void (D::*range_handler_)(int) = nullptr;
};

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_DIALOGS_MESSAGE_MAP_H_
