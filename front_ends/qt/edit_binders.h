// Edit boxes of one line and of many.
#ifndef ORRERYUI_FRONT_ENDS_QT_EDIT_BINDERS_H_
#define ORRERYUI_FRONT_ENDS_QT_EDIT_BINDERS_H_

#include <QLineEdit>

#include "front_ends/qt/control_binder.h"
#include "front_ends/qt/find_bar.h"
#include "front_ends/qt/row_edit.h"

namespace orreryui {

// A line edit that shows the beginning of a text that is too long for it, also when the tab key
// selects it. It may take files from a file manager.
class LineField : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

  // Called with the path of a file that is dropped; neither folders nor several files are. While
  // this is empty none is taken.
  std::function<void(const QString&)> on_file;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
};

// A line edit as part of a control: reports what is typed, and leaves out of the box what the
// session refuses. Edit boxes and the edit fields of combo boxes share it.
class TypedLine {
 public:
  // Reports for the control `id`. The edit isn't owned.
  TypedLine(QLineEdit* edit, int id);

  // Shows the model's text, unless the user is typing at this moment.
  void Show(const QString& text);

  // To be called when the user has edited the line. `run` runs a gesture.
  void Report(const std::function<void(const GestureRunner::Gesture&)>& run);

  // The same for a file that was dropped.
  void Drop(const QString& path, const std::function<void(const GestureRunner::Gesture&)>& run);

 private:
  void Run(const std::function<void(const GestureRunner::Gesture&)>& run,
           const std::function<TypedText(ControlSession&)>& gesture);

  QLineEdit* edit_;
  int id_;
  bool typing_ = false;
};

class LineEditBinder : public ControlBinder {
 public:
  explicit LineEditBinder(const BinderPlace& place);
  QWidget* widget() const override { return edit_; }
  QSize Needed(const ControlView& view, QSize offered) const override;
  void SetCaption(const QString& caption) override { edit_->setAccessibleName(caption); }

 protected:
  void ShowState(const ControlView& view) override;

 private:
  LineField* edit_;
  TypedLine line_;
};

class TextEditBinder : public ControlBinder {
 public:
  explicit TextEditBinder(const BinderPlace& place);
  QWidget* widget() const override { return edit_; }
  QSize Needed(const ControlView& view, QSize offered) const override;
  QWidget* InnerFocusWidget() const override;
  void SetCaption(const QString& caption) override { edit_->setAccessibleName(caption); }

 protected:
  void ShowState(const ControlView& view) override;

 private:
  void AddKeys();
  void AddKey(const QKeySequence& keys, const std::function<void()>& press);
  void OpenFindBar();
  void CloseFindBar();
  bool Find(const QString& wanted, FindBar::Way way);
  void Report();
  void Replace(const QString& text);

  RowEdit* edit_;
  QString known_;  // the text, or the part of it, that the session shows
  bool typing_ = false;
  bool has_keys_ = false;
  FindBar* find_bar_ = nullptr;  // once it was opened
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_EDIT_BINDERS_H_
