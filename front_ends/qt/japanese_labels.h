// The Japanese labels of Qt's own choosers, boxes and menus, whatever language the host speaks and
// whether or not Qt's Japanese translation is installed.
#ifndef ORRERYUI_FRONT_ENDS_QT_JAPANESE_LABELS_H_
#define ORRERYUI_FRONT_ENDS_QT_JAPANESE_LABELS_H_

namespace orreryui {

// While one lives, Qt's labels are Japanese. They nest. There must be an application; its windows
// aren't told, and outside of our dialogs it speaks its own language.
class JapaneseLabels {
 public:
  JapaneseLabels();
  ~JapaneseLabels();
  JapaneseLabels(const JapaneseLabels&) = delete;
  JapaneseLabels& operator=(const JapaneseLabels&) = delete;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_JAPANESE_LABELS_H_
