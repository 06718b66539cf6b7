#include "front_ends/qt/edit_binders.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QTextOption>
#include <QUrl>
#include <utility>

#include "front_ends/qt/refusal.h"
#include "front_ends/qt/text_fit.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

// What the document holds, its lines divided by LF. toPlainText would turn no-break spaces into
// blanks.
QString TextOf(const QTextDocument& document) {
  QString text = document.toRawText();
  text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  return text.replace(QChar::LineSeparator, QLatin1Char('\n'));
}

void Align(QTextDocument& document, Qt::Alignment alignment) {
  QTextOption option = document.defaultTextOption();
  if (option.alignment() == alignment) return;
  option.setAlignment(alignment);
  document.setDefaultTextOption(option);
}

// The path of the one file that is dropped, or the empty string.
QString DroppedFile(const QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
  const QString path = urls.front().toLocalFile();
  return QFileInfo(path).isFile() ? path : QString();
}

// Whether the box is too low for two lines.
bool IsOneRow(const ControlView& view) {
  constexpr int kUnitsOfLine = 8;
  return view.place.height < 2 * kUnitsOfLine;
}

}  // namespace

void LineField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  const int length = int(text().size());
  if (hasSelectedText() && selectionLength() == length) setSelection(length, -length);
}

void LineField::dragEnterEvent(QDragEnterEvent* event) {
  if (!on_file || !event->mimeData()->hasUrls()) return QLineEdit::dragEnterEvent(event);
  event->setAccepted(!DroppedFile(*event).isEmpty());
}

void LineField::dragMoveEvent(QDragMoveEvent* event) {
  if (!on_file || !event->mimeData()->hasUrls()) return QLineEdit::dragMoveEvent(event);
  event->setAccepted(!DroppedFile(*event).isEmpty());
}

void LineField::dropEvent(QDropEvent* event) {
  if (!on_file || !event->mimeData()->hasUrls()) return QLineEdit::dropEvent(event);
  const QString path = DroppedFile(*event);
  event->setAccepted(!path.isEmpty());
  if (!path.isEmpty()) on_file(path);
}

TypedLine::TypedLine(QLineEdit* edit, int id) : edit_(edit), id_(id) {}

void TypedLine::Show(const QString& text) {
  if (typing_ || edit_->text() == text) return;
  edit_->setText(text);
  edit_->setCursorPosition(0);
}

void TypedLine::Report(const std::function<void(const GestureRunner::Gesture&)>& run) {
  const std::string text = ToUtf8(edit_->text());
  Run(run, [&](ControlSession& session) { return session.Type(id_, text); });
}

void TypedLine::Drop(const QString& path,
                     const std::function<void(const GestureRunner::Gesture&)>& run) {
  Run(run, [&](ControlSession& session) { return session.DropFile(id_, ToUtf8(path)); });
}

void TypedLine::Run(const std::function<void(const GestureRunner::Gesture&)>& run,
                    const std::function<TypedText(ControlSession&)>& gesture) {
  TypedText typed{ToUtf8(edit_->text()), {}};
  typing_ = true;
  run([&](ControlSession& session) { typed = gesture(session); });
  typing_ = false;

  const QString text = FromUtf8(typed.text);
  if (text != edit_->text()) {
    const TextChange change = SmallestChange(edit_->text(), text, edit_->cursorPosition());
    const QSignalBlocker blocker(edit_);
    edit_->setSelection(change.begin, change.length);
    edit_->insert(change.with);
  }
  TellRefusal(*edit_, typed.refused);
}

LineEditBinder::LineEditBinder(const BinderPlace& place)
    : ControlBinder(place), edit_(new LineField(place.parent)), line_(edit_, place.id) {
  QObject::connect(edit_, &QLineEdit::textEdited, edit_, [this] {
    line_.Report([this](const GestureRunner::Gesture& gesture) { Run(gesture); });
  });
}

void LineEditBinder::ShowState(const ControlView& view) {
  edit_->setAlignment((view.right_aligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  line_.Show(FromUtf8(view.text));
  if (!view.takes_file || edit_->on_file) return;
  edit_->on_file = [this](const QString& path) {
    line_.Drop(path, [this](const GestureRunner::Gesture& gesture) { Run(gesture); });
  };
}

QSize LineEditBinder::Needed(const ControlView&, QSize offered) const {
  return offered.expandedTo({0, edit_->minimumSizeHint().height()});
}

TextEditBinder::TextEditBinder(const BinderPlace& place)
    : ControlBinder(place), edit_(new RowEdit(place.parent)) {
  edit_->setTabChangesFocus(true);
  QObject::connect(edit_, &QPlainTextEdit::textChanged, edit_, [this] { Report(); });
  edit_->on_scroll = [this](int line) {
    Run([this, line](ControlSession& session) { session.Scroll(id(), line); });
  };
}

void TextEditBinder::ShowState(const ControlView& view) {
  const Qt::Alignment side = view.right_aligned ? Qt::AlignRight : Qt::AlignLeft;
  const bool in_one_row = IsOneRow(view);
  if (in_one_row) {
    edit_->ShowInOneRow(side);
  } else {
    AddKeys();
    Align(*edit_->document(), side);
  }
  const QString text = FromLines(view.text);
  if (!typing_ && text != known_) {
    known_ = text;
    if (!in_one_row) edit_->setWordWrapMode(WrapModeFor(text));
    edit_->setPlainText(text);
  }
  edit_->SetPart(view.part, in_one_row             ? Qt::ScrollBarAlwaysOff
                            : view.tall_scroll_bar ? Qt::ScrollBarAlwaysOn
                                                   : Qt::ScrollBarAsNeeded);
}

QSize TextEditBinder::Needed(const ControlView& view, QSize offered) const {
  return IsOneRow(view) ? offered.expandedTo({0, edit_->RowHeight()}) : offered;
}

// They work wherever the focus is in the window.
void TextEditBinder::AddKeys() {
  if (std::exchange(has_keys_, true)) return;
  AddKey(QKeySequence::Find, [this] { OpenFindBar(); });
  AddKey(QKeySequence::FindNext, [this] {
    if (find_bar_ != nullptr) find_bar_->Find(FindBar::Way::kNext);
  });
  AddKey(QKeySequence::FindPrevious, [this] {
    if (find_bar_ != nullptr) find_bar_->Find(FindBar::Way::kPrevious);
  });
  for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Semicolon}) {
    AddKey(Qt::CTRL | key, [this] { edit_->Zoom(1); });
  }
  AddKey(QKeySequence::ZoomOut, [this] { edit_->Zoom(-1); });
  AddKey(Qt::CTRL | Qt::Key_0, [this] { edit_->Zoom(0); });
}

void TextEditBinder::AddKey(const QKeySequence& keys, const std::function<void()>& press) {
  auto* const key = new QShortcut(keys, edit_);
  QObject::connect(key, &QShortcut::activated, edit_, press);
}

void TextEditBinder::OpenFindBar() {
  if (find_bar_ == nullptr) {
    find_bar_ = new FindBar(edit_);
    find_bar_->on_find = [this](const QString& wanted, FindBar::Way way) {
      return Find(wanted, way);
    };
    find_bar_->on_close = [this] { CloseFindBar(); };
    find_bar_->setFont(edit_->parentWidget()->font());
    edit_->SetStrip(find_bar_);
    QWidget::setTabOrder(edit_, find_bar_->line());
  }
  find_bar_->Open();
  edit_->LayOut();
  edit_->ensureCursorVisible();
}

void TextEditBinder::CloseFindBar() {
  edit_->setFocus();
  find_bar_->hide();
  edit_->LayOut();
}

QWidget* TextEditBinder::InnerFocusWidget() const {
  return find_bar_ != nullptr && find_bar_->line()->hasFocus() ? find_bar_->line() : nullptr;
}

bool TextEditBinder::Find(const QString& wanted, FindBar::Way way) {
  const QTextCursor cursor = edit_->textCursor();
  const bool behind = way == FindBar::Way::kNext;
  const int from = behind ? cursor.selectionEnd() : cursor.selectionStart();
  std::optional<TextRange> found;
  std::string shown;
  Run([&](ControlSession& session) {
    found = session.Find(id(), ToUtf8(wanted), PlaceOfLines(session.Control(index()).text, from),
                         way == FindBar::Way::kPrevious);
    shown = session.Control(index()).text;
  });
  if (!found) return false;
  QTextCursor place(edit_->document());
  place.setPosition(PlaceInLines(shown, found->begin));
  place.setPosition(PlaceInLines(shown, found->end), QTextCursor::KeepAnchor);
  edit_->setTextCursor(place);
  return true;
}

void TextEditBinder::Report() {
  const QString text = TextOf(*edit_->document());
  if (typing_ || text == known_) return;
  typing_ = true;
  TypedText typed{ToLines(text), {}};
  Run([&](ControlSession& session) { typed = session.Type(id(), typed.text); });
  known_ = FromLines(typed.text);
  if (known_ != text) Replace(known_);
  typing_ = false;
  TellRefusal(*edit_, typed.refused);
}

void TextEditBinder::Replace(const QString& text) {
  QTextCursor cursor = edit_->textCursor();
  const TextChange change = SmallestChange(TextOf(*edit_->document()), text, cursor.position());
  cursor.setPosition(change.begin);
  cursor.setPosition(change.begin + change.length, QTextCursor::KeepAnchor);
  cursor.insertText(change.with);
  edit_->setTextCursor(cursor);
}

}  // namespace orreryui
