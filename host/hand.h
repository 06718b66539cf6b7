// The hand of the tour: acts on the controls of one dialog as a user does. Controls are named by
// their numbers, and texts are UTF-8.
#ifndef ORRERYUI_HOST_HAND_H_
#define ORRERYUI_HOST_HAND_H_

#include <string>

namespace orreryui::host {

class Hand {
 public:
  virtual ~Hand() = default;

  virtual void Click(int control) = 0;  // a button of any kind
  virtual void Type(int control,
                    const std::string& text) = 0;  // instead of the text of an edit box
  virtual void PickFromCombo(int control, int row) = 0;
  virtual void PickFromList(int control, int row) = 0;  // or from a combo box that is always open
  virtual void OpenFromList(int control, int row) = 0;  // by a double click
  virtual void PickTab(int control, int tab) = 0;
  virtual void GiveUp() = 0;  // closes the dialog
  virtual void TakePicture() = 0;
};

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_HAND_H_
