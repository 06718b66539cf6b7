// The Japanese labels of Qt's own choosers, where Qt's Japanese translation isn't installed.
#ifndef ORRERYUI_FRONT_ENDS_QT_JAPANESE_LABELS_H_
#define ORRERYUI_FRONT_ENDS_QT_JAPANESE_LABELS_H_

#include <QTranslator>

namespace orreryui {

// Holds what the file and the colour chooser show; everything else keeps Qt's words.
class JapaneseLabels : public QTranslator {
 public:
  using QTranslator::QTranslator;

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* comment,
                    int number) const override;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_JAPANESE_LABELS_H_
