#include "front_ends/qt/static_binders.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

#include "front_ends/qt/text_fit.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

// A line feed at the end begins no line.
QString Lines(const ControlView& view) {
  QString text = FromLines(view.text);
  if (text.endsWith(QLatin1Char('\n'))) text.chop(1);
  return text;
}

}  // namespace

void TextLabel::SetWhole(const QString& whole) {
  whole_ = whole;
  const QString name = whole == text() ? QString() : whole;
  if (accessibleName() != name) setAccessibleName(name);
}

void TextLabel::contextMenuEvent(QContextMenuEvent* event) {
  if (objectName().isEmpty() || whole_.isEmpty()) return event->ignore();
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(QStringLiteral("コピー"), this,
                  [this] { QGuiApplication::clipboard()->setText(whole_); });
  menu->popup(event->globalPos());
}

StaticBinder::StaticBinder(const BinderPlace& place)
    : ControlBinder(place), label_(new TextLabel(place.parent)) {
  label_->setTextFormat(Qt::PlainText);
}

void StaticBinder::ShowState(const ControlView& view) {
  const auto alignment = (view.right_aligned ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
  if (label_->alignment() != alignment) label_->setAlignment(alignment);
  text_ = Lines(view);
}

QSize StaticBinder::Needed(const ControlView&, QSize offered) const {
  return NeededSize(text_, label_->font(), offered);
}

void StaticBinder::Arrange(const ControlView& view, const DialogScale& scale) {
  ControlBinder::Arrange(view, scale);
  const QFont font = label_->font();
  const bool fits = NeededSize(text_, font, label_->size()) == label_->size();
  // The label would break at blanks alone, which a path doesn't have.
  const QString shown =
      fits ? BreakLines(text_, font, label_->width()) : Shortened(text_, font, label_->size());
  if (label_->text() != shown) label_->setText(shown);
  label_->SetWhole(text_);
  const QString tip = fits ? QString() : CutDown(text_).toHtmlEscaped();
  if (label_->toolTip() != tip) label_->setToolTip(tip);
}

GroupBoxBinder::GroupBoxBinder(const BinderPlace& place)
    : ControlBinder(place), box_(new QGroupBox(place.parent)) {
  // The frame stands behind the controls that it surrounds.
  box_->setAttribute(Qt::WA_TransparentForMouseEvents);
  box_->lower();
}

void GroupBoxBinder::ShowState(const ControlView& view) {
  box_->setTitle(Literal(FromUtf8(view.text)));
}

QSize GroupBoxBinder::Needed(const ControlView& view, QSize offered) const {
  constexpr int kMargins = 24;
  return offered.expandedTo({TextSize(FromUtf8(view.text), box_->font()).width() + kMargins, 0});
}

}  // namespace orreryui
