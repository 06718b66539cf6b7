#include "front_ends/qt/tab_binder.h"

#include <QShortcut>
#include <algorithm>

#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

constexpr QKeyCombination kKeysForward[] = {Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown};
constexpr QKeyCombination kKeysBackward[] = {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab,
                                             Qt::CTRL | Qt::Key_PageUp};

}  // namespace

TabBinder::TabBinder(const BinderPlace& place, PaneFrame& frame)
    : ControlBinder(place),
      frame_(frame),
      parent_(place.parent),
      bar_(new QTabBar(place.parent)),
      backdrop_(new QFrame(place.parent)) {
  backdrop_->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
  backdrop_->setAttribute(Qt::WA_TransparentForMouseEvents);
  backdrop_->lower();
  bar_->setFocusPolicy(Qt::StrongFocus);
  bar_->setExpanding(false);
  bar_->setUsesScrollButtons(false);
  QObject::connect(bar_, &QTabBar::currentChanged, bar_, [this](int tab) {
    Run([this, tab](ControlSession& session) { session.Pick(id(), tab); });
  });
  for (const QKeyCombination key : kKeysForward) StepBy(1, key);
  for (const QKeyCombination key : kKeysBackward) StepBy(-1, key);
}

void TabBinder::StepBy(int step, QKeyCombination key) {
  auto* const shortcut = new QShortcut(QKeySequence(key), bar_);
  QObject::connect(shortcut, &QShortcut::activated, bar_, [this, step] {
    const int tabs = bar_->count();
    if (tabs > 0) bar_->setCurrentIndex((bar_->currentIndex() + step + tabs) % tabs);
  });
}

void TabBinder::ShowState(const ControlView& view) {
  const int tabs = int(view.rows.size());
  while (bar_->count() > tabs) bar_->removeTab(bar_->count() - 1);
  for (int tab = 0; tab < tabs; ++tab) {
    const auto& row = view.rows[std::size_t(tab)];
    const QString caption = row.empty() ? QString() : Literal(FromUtf8(row.front()));
    if (tab == bar_->count()) bar_->addTab(caption);
    if (bar_->tabText(tab) != caption) bar_->setTabText(tab, caption);
  }
  bar_->setCurrentIndex(view.selection);
  if (AddPages(tabs)) frame_.ContentsChanged();
  ShowSelectedPage(view.visible ? view.selection : -1);
}

bool TabBinder::AddPages(int tabs) {
  bool added = false;
  for (int tab = 0; tab < tabs; ++tab) {
    if (pages_.count(tab) != 0) continue;
    ControlSession* session = frame_.Page(id(), tab);
    if (session == nullptr) continue;
    auto* page = new ControlPane(*session, frame_, parent_);
    page->setObjectName(QString::number(session->Layout().number));
    pages_[tab] = page;
    session->Start(*page);
    page->Build();
    added = true;
  }
  return added;
}

void TabBinder::ShowSelectedPage(int tab) {
  for (const auto& [number, page] : pages_) page->setVisible(number == tab);
}

QSize TabBinder::Needed(const ControlView& view, QSize offered) const {
  QSize needed = offered.expandedTo({bar_->sizeHint().width(), 0});
  const DialogScale scale{double(offered.width()) / view.place.width,
                          double(offered.height()) / view.place.height};
  for (const auto& [tab, page] : pages_) {
    const DialogScale grown = page->Grow(scale);
    if (grown.x > scale.x) needed.rwidth() = std::max(needed.width(), offered.width() + 1);
    if (grown.y > scale.y) needed.rheight() = std::max(needed.height(), offered.height() + 1);
  }
  return needed;
}

void TabBinder::Arrange(const ControlView& view, const DialogScale& scale) {
  const QRect whole = scale.ToPixels(view.place);
  const int bar_height = bar_->sizeHint().height();
  bar_->setGeometry(whole.x(), whole.y(), whole.width(), bar_height);
  const QRect below = whole.adjusted(0, bar_height, 0, 0);
  backdrop_->setGeometry(below);
  for (const auto& [tab, page] : pages_) {
    page->setGeometry(below.adjusted(2, 2, -2, -2));
    page->Arrange(scale);
  }
}

QList<QWidget*> TabBinder::FocusWidgets() const {
  QList<QWidget*> widgets{bar_};
  for (const auto& [tab, page] : pages_) widgets << page->FocusWidgets();
  return widgets;
}

QWidget* TabBinder::InnerFocusWidget() const {
  for (const auto& [tab, page] : pages_) {
    if (QWidget* const widget = page->FocusWidget()) return widget;
  }
  return nullptr;
}

void TabBinder::AfterGesture() {
  if (AddPages(bar_->count())) {
    frame_.ContentsChanged();
    ShowSelectedPage(bar_->currentIndex());
  }
  for (const auto& [tab, page] : pages_) page->AfterGesture();
}

}  // namespace orreryui
