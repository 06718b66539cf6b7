// The window of one running dialog.
#ifndef ORRERYUI_FRONT_ENDS_QT_QT_DIALOG_H_
#define ORRERYUI_FRONT_ENDS_QT_QT_DIALOG_H_

#include <QDialog>
#include <QEventLoop>
#include <QScrollArea>
#include <QWindow>
#include <functional>
#include <memory>

#include "front_ends/qt/control_pane.h"
#include "front_ends/qt/pane_frame.h"
#include "platform/front_end.h"

namespace orreryui {

class QtDialog : public QDialog, public DialogWindow, private PaneFrame {
 public:
  // `owner` is the dialog that this one covers, or null. The session outlives the window.
  QtDialog(DialogSession& session, QWidget* owner);
  ~QtDialog() override;

  // Shows the dialog, whose session has been started, until it has ended. A program that quits ends
  // it as if its window had been closed.
  void RunModally();

  void Refresh(const std::vector<int>& indices) override;
  void RefreshLayout() override;

  void reject() override { PressEscape(); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  ControlSession* Page(int tab_control, int tab) override {
    return session_.Page(tab_control, tab);
  }
  bool Ended() const override { return session_.Ended(); }
  void GestureDone() override;
  void PressEnter() override {
    Run([](DialogSession& session) { session.Enter(); });
  }
  void PressEscape() override {
    Run([](DialogSession& session) { session.Escape(); });
  }
  void ContentsChanged() override;
  void FocusChanged() override;
  void Abandon() override;

  // Runs a gesture that no pane has.
  void Run(const std::function<void(DialogSession&)>& gesture);

  void Build();
  void StandBefore(QWindow* host);
  void Arrange();
  void FitIntoScreen(QSize size);
  void LetGrow(const DialogRect& grower, QSize natural);
  void ShareOut();
  void OrderTabs();
  void ShowFocus();
  void Place();
  void StayOnScreen();
  const QWindow* HostWindow() const;  // that the outermost dialog stands before, or null
  void Paint();

  DialogSession& session_;
  std::unique_ptr<QWindow> foreign_host_;  // the host's window where that isn't one of Qt's
  QEventLoop loop_;
  bool abandoned_ = false;
  ControlPane* pane_ = nullptr;
  QScrollArea* scroll_area_ = nullptr;  // only where the screen is too small
  DialogScale scale_;
  DialogScale most_;  // the scale beyond which texts are cut instead
  QSize natural_;     // of a window that the user may make larger: its size in the template
  DialogLayout placed_;
  QList<QWidget*> tab_order_;
  bool covered_ = false;  // nothing of the window was to be seen since it was last drawn
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_QT_DIALOG_H_
