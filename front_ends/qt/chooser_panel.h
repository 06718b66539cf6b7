// The panel of a file chooser: the controls of a session below the chooser's own, and what the
// session hears of the chooser.
#ifndef ORRERYUI_FRONT_ENDS_QT_CHOOSER_PANEL_H_
#define ORRERYUI_FRONT_ENDS_QT_CHOOSER_PANEL_H_

#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QTreeView>
#include <functional>

#include "front_ends/qt/control_pane.h"
#include "front_ends/qt/dialog_scale.h"
#include "front_ends/qt/pane_frame.h"
#include "platform/front_end.h"

namespace orreryui {

class ChooserPanel : public QObject, public PaneFrame {
 public:
  // Starts the session and joins it to the chooser, which is Qt's own and bears the panel's number
  // from then on. Both outlive the panel.
  ChooserPanel(PanelSession& session, QFileDialog& chooser);

  // The rest of PaneFrame, for the panel's own pane.
  bool Ended() const override { return session_.Ended(); }
  ControlSession* Page(int, int) override { return nullptr; }
  void GestureDone() override;
  void PressEnter() override { static_cast<QDialog&>(chooser_).accept(); }
  void PressEscape() override { chooser_.reject(); }
  void ContentsChanged() override { Arrange(); }
  void FocusChanged() override { ShowLabel(); }
  void Abandon() override { chooser_.reject(); }

 private:
  void Join();
  void Arrange();
  void OrderTabs();
  void Listen();
  void ReportSelection();
  void Report(const std::function<void()>& gesture);
  void ShowLabel();

  PanelSession& session_;
  QFileDialog& chooser_;
  DialogScale scale_;
  DialogScale most_;   // the scale beyond which texts are cut instead
  ControlPane* pane_;  // the chooser owns these
  QFileSystemModel* files_;
  QTreeView* rows_;
  QLineEdit* name_;
  bool selected_by_name_ = false;
};

}  // namespace orreryui

#endif  // ORRERYUI_FRONT_ENDS_QT_CHOOSER_PANEL_H_
