#include "front_ends/qt/qt_dialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <algorithm>

#include "front_ends/qt/foreign_window.h"
#include "front_ends/qt/growth.h"
#include "front_ends/qt/screen_room.h"
#include "front_ends/qt/widget_text.h"

namespace orreryui {
namespace {

QRect Inside(QRect window, const QRect& area) {
  window.moveRight(std::min(window.right(), area.right()));
  window.moveBottom(std::min(window.bottom(), area.bottom()));
  window.moveLeft(std::max(window.left(), area.left()));
  window.moveTop(std::max(window.top(), area.top()));
  return window;
}

QPoint OnSomeScreen(QPoint pixel) {
  const QRect all = QGuiApplication::primaryScreen()->virtualGeometry();
  return {std::clamp(pixel.x(), all.left(), all.right()),
          std::clamp(pixel.y(), all.top(), all.bottom())};
}

}  // namespace

QtDialog::QtDialog(DialogSession& session, QWidget* owner) : QDialog(owner), session_(session) {
  setAttribute(Qt::WA_QuitOnClose, false);
  setWindowModality(Qt::ApplicationModal);
  setLocale(QLocale(QLocale::Japanese, QLocale::Japan));
}

QtDialog::~QtDialog() {
  Quietly([this] {
    hide();
    delete pane_;
  });
}

void QtDialog::RunModally() {
  Quietly([this] { Build(); });
  QWindow* const host = QGuiApplication::focusWindow();
  create();
  if (parentWidget() == nullptr) StandBefore(host);
  windowHandle()->installEventFilter(this);
  qApp->installEventFilter(this);
  Place();
  Quietly([this] {
    ShowFocus();
    show();
  });
  activateWindow();
  Paint();
  if (!Ended() && !abandoned_) loop_.exec(QEventLoop::DialogExec);
  if (!Ended()) session_.Escape();
}

void QtDialog::StandBefore(QWindow* host) {
  if (host == nullptr) {
    foreign_host_ = ActiveForeignWindow(winId());
    host = foreign_host_.get();
  }
  if (host != nullptr) windowHandle()->setTransientParent(host);
}

void QtDialog::Build() {
  setObjectName(QString::number(session_.Layout().number));
  setWindowTitle(LiteralTitle(FromUtf8(session_.Layout().title)));
  pane_ = new ControlPane(session_, *this, this);
  pane_->Build();
  if (pane_->GrowingPlace() != nullptr) {
    setSizeGripEnabled(true);
    setWindowFlags(windowFlags() | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint | Qt::WindowMaximizeButtonHint);
  }
  const QSize room = RoomFor(*this);
  scale_ = DialogScale::Of(font()).LowFor(session_.Layout(), room, font());
  most_ = scale_.MostFor(session_.Layout(), room);
  Arrange();
}

void QtDialog::Arrange() {
  const DialogLayout layout = session_.Layout();
  scale_ = pane_->GrowUpTo(scale_, most_);
  const QPoint corner = scale_.ToPixels(layout.width, layout.height);
  const QSize size(corner.x(), corner.y());
  if (const DialogRect* const grower = pane_->GrowingPlace()) {
    LetGrow(*grower, size);
  } else {
    pane_->setFixedSize(size);
    pane_->Arrange(scale_);
    FitIntoScreen(size);
  }
  OrderTabs();
}

// The user's own changes of the size stay.
void QtDialog::LetGrow(const DialogRect& grower, QSize natural) {
  const QPoint least = LeastGain(grower);
  const QPoint spare = scale_.ToPixels(least.x(), least.y());
  setMinimumSize(natural + QSize(spare.x(), spare.y()));
  if (natural != natural_) {
    const QSize gained = isVisible() ? size() - natural_ : QSize(0, 0);
    natural_ = natural;
    resize((natural + gained).boundedTo(RoomFor(*this)));
  }
  ShareOut();
}

void QtDialog::ShareOut() {
  const QSize gained = size() - natural_;
  pane_->setFixedSize(size());
  pane_->Arrange(scale_, scale_.ToUnits(gained));
}

void QtDialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (pane_ != nullptr && pane_->GrowingPlace() != nullptr) Quietly([this] { ShareOut(); });
}

void QtDialog::FitIntoScreen(QSize size) {
  const QSize room = RoomFor(*this);
  if (size.width() <= room.width() && size.height() <= room.height() && scroll_area_ == nullptr) {
    setFixedSize(size);
    return;
  }
  if (scroll_area_ == nullptr) {
    scroll_area_ = new QScrollArea(this);
    scroll_area_->setFrameShape(QFrame::NoFrame);
    scroll_area_->setFocusPolicy(Qt::NoFocus);
    scroll_area_->setWidget(pane_);
  }
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  setFixedSize((size + QSize(bar, bar)).boundedTo(room));
  scroll_area_->setGeometry(rect());
}

void QtDialog::OrderTabs() {
  const QList<QWidget*> order = pane_->FocusWidgets();
  if (order == tab_order_) return;
  tab_order_ = order;
  for (int next = 1; next < order.size(); ++next) setTabOrder(order[next - 1], order[next]);
}

void QtDialog::ShowFocus() {
  QWidget* const wanted = pane_->FocusWidget();
  if (wanted == nullptr || wanted->hasFocus()) return;
  QWidget* const proxy = wanted->focusProxy();
  if (proxy != nullptr && proxy->hasFocus()) return;
  wanted->setFocus(Qt::TabFocusReason);
}

const QWindow* QtDialog::HostWindow() const {
  const QWidget* outermost = this;
  while (outermost->parentWidget() != nullptr) outermost = outermost->parentWidget()->window();
  return outermost->windowHandle()->transientParent();
}

void QtDialog::Place() {
  placed_ = session_.Layout();
  QRect area = AvailableArea(*this);
  // A dialog stays on the screen of the window that it stands before.
  const auto frame = [&area](const QWindow* before) {
    if (before == nullptr) return area;
    const QRect place = FrameOf(*before);
    const QScreen* const there = QGuiApplication::screenAt(place.center());
    area = (there != nullptr ? there : before->screen())->availableGeometry();
    return place;
  };
  QRect window(QPoint(), size());
  switch (placed_.placement) {
    case Placement::kAtPosition:
      window.moveTopLeft(frame(HostWindow()).topLeft() + scale_.ToPixels(placed_.x, placed_.y));
      break;
    case Placement::kCentred:
      window.moveCenter(frame(windowHandle()->transientParent()).center());
      break;
    case Placement::kOnPointer:
      window.moveCenter(QCursor::pos());
      break;
    case Placement::kAtPixel:
      window.moveTopLeft(OnSomeScreen({placed_.x, placed_.y}));
      if (const QScreen* const there = QGuiApplication::screenAt(window.topLeft())) {
        area = there->availableGeometry();
      }
      break;
  }
  move(Inside(QRect(window.topLeft(), window.size() + kWindowFrame), area).topLeft());
}

void QtDialog::StayOnScreen() {
  const QRect window = frameGeometry();
  const QRect inside = Inside(window, screen()->availableGeometry());
  if (inside != window) move(inside.topLeft());
}

void QtDialog::Refresh(const std::vector<int>& indices) {
  if (pane_ != nullptr) pane_->Refresh(indices);
}

void QtDialog::RefreshLayout() {
  if (pane_ == nullptr) return;
  FocusChanged();
  const DialogLayout now = session_.Layout();
  setWindowTitle(LiteralTitle(FromUtf8(now.title)));
  const bool moved = now.placement != placed_.placement || now.x != placed_.x || now.y != placed_.y;
  if (moved && isVisible()) Place();
}

void QtDialog::ContentsChanged() {
  if (scale_.x <= 0 || Ended()) return;
  const QSize before = size();
  Quietly([this] { Arrange(); });
  if (isVisible() && size() != before) StayOnScreen();
  FocusChanged();
}

void QtDialog::FocusChanged() {
  if (isVisible() && !Ended()) Quietly([this] { ShowFocus(); });
}

void QtDialog::GestureDone() {
  if (Ended()) {
    loop_.quit();
  } else {
    pane_->AfterGesture();
  }
}

void QtDialog::Run(const std::function<void(DialogSession&)>& gesture) {
  if (Ended()) return;
  Guarded([&] {
    gesture(session_);
    GestureDone();
  });
}

void QtDialog::Paint() {
  Run([](DialogSession& session) { session.Paint(); });
}

void QtDialog::Abandon() {
  abandoned_ = true;
  loop_.quit();
}

void QtDialog::keyPressEvent(QKeyEvent* event) {
  if (event->isAutoRepeat()) return;
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      PressEnter();
      break;
    case Qt::Key_Escape:
      PressEscape();
      break;
    default:
      event->ignore();
  }
}

void QtDialog::closeEvent(QCloseEvent* event) {
  if (!abandoned_) PressEscape();
  event->setAccepted(Ended() || abandoned_);
}

bool QtDialog::eventFilter(QObject* watched, QEvent* event) {
  // A dialog that another window covers would refuse to close, and thereby the quitting.
  if (watched == qApp && event->type() == QEvent::Quit) Abandon();
  if (watched == windowHandle() && event->type() == QEvent::Expose) {
    if (!windowHandle()->isExposed()) {
      covered_ = true;
    } else if (covered_) {
      covered_ = false;
      QTimer::singleShot(0, this, [this] { Paint(); });
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace orreryui
