// Buttons that are one stop of the tab key together.
#ifndef ORRERYUI_FRONT_ENDS_QT_BUTTON_GROUPS_H_
#define ORRERYUI_FRONT_ENDS_QT_BUTTON_GROUPS_H_

#include <QAbstractButton>
#include <QButtonGroup>
#include <QElapsedTimer>
#include <QString>

namespace orreryui {

// The tab key goes to `stop`, of the buttons in the group. A click gives each of them the focus.
void SetTabStop(const QButtonGroup& group, const QAbstractButton* stop);

// Check buttons that lie as the parts of a map. An arrow key goes to the neighbour on its side, and
// typing, by an input method too, goes to the next button whose accessible name or description
// begins so. The tab key goes to the button that had the focus last; until there is one, to the
// first that is checked.
class ButtonMap : public QButtonGroup {
 public:
  explicit ButtonMap(QObject* parent);

  // The button, whose names may come later, belongs to its parent widget.
  void Add(QAbstractButton* button);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakesKey(QAbstractButton& from, const QKeyEvent& key);
  QAbstractButton* Neighbour(const QAbstractButton& from, int arrow) const;

  // Goes to where `text`, behind what was typed just before, leads.
  void Search(QAbstractButton& from, const QString& text);

  // The first button, from the one at `first` on and round about, that is called so.
  QAbstractButton* Find(const QString& beginning, qsizetype first) const;

  QAbstractButton* stop_ = nullptr;
  QString typed_;
  QElapsedTimer since_typed_;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_BUTTON_GROUPS_H_
