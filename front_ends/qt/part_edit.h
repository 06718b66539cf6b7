// A multi-line edit for a text that may be longer than what its document holds: some of the text's
// lines. It then has a scroll bar over all lines, and asks for others before the user has come to
// the end of those that it has. Selecting ends where the part does.
#ifndef ORRERYUI_FRONT_ENDS_QT_PART_EDIT_H_
#define ORRERYUI_FRONT_ENDS_QT_PART_EDIT_H_

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTimer>
#include <functional>

#include "platform/front_end.h"

namespace orreryui {

class PartEdit : public QPlainTextEdit {
 public:
  explicit PartEdit(QWidget* parent);

  // Is to give the edit the part around this line of the whole text: setPlainText, then SetPart.
  std::function<void(int line)> on_scroll;

  // Which lines the document holds now, and when there is a vertical scroll bar.
  void SetPart(const TextPart& part, Qt::ScrollBarPolicy bar);

  // Lays the widget, which the edit owns, below the text while that widget is shown; LayOut is to
  // be called when it was shown or hidden.
  void SetStrip(QWidget* strip) { strip_ = strip; }
  void LayOut();

  // Makes the letters larger by so many steps, or smaller. 0 is back to their own size.
  void Zoom(int steps);

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // A place in the whole text.
  struct Place {
    int line;
    int column;
  };

  bool LacksBefore() const { return part_.first > 0; }
  bool LacksBehind() const { return part_.first + part_.count < part_.all; }
  bool Holds(int line) const { return line >= part_.first && line < part_.first + part_.count; }
  int LineOf(const QTextBlock& block) const;
  QTextBlock BlockOf(int line) const;
  Place PlaceOf(int position) const;
  int PositionOf(Place place) const;

  void Fetch(int line);
  void GoTo(int line);
  void Follow();
  void ShowBar();

  TextPart part_;
  QWidget* strip_ = nullptr;
  int zoom_ = 0;            // steps
  int turned_ = 0;          // by the wheel, since the last step
  QScrollBar* bar_;         // over all lines; only seen where the document holds a part
  QTimer follow_;           // runs off once a scroll of the document is through
  int followed_block_ = 0;  // the first visible one when it last did
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_PART_EDIT_H_
