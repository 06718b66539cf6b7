// The rules of the platform: what each gesture changes, and which events follow in which order.
#include "platform/dialogs/dialog.h"

#include <gtest/gtest.h>

#include "platform/dialogs/file_dialog.h"
#include "platform/dialogs/inner_windows.h"
#include "tests/support/play.h"

namespace orreryui {
namespace {

constexpr int kPush = 10, kSecondPush = 11, kSwatch = 12;
constexpr int kRadioA = 20, kRadioB = 21, kRadioC = 22, kRadioD = 23;
constexpr int kCheck = 30, kPushLike = 31;
constexpr int kEdit = 40, kMulti = 41, kCombo = 42, kSimple = 43;
constexpr int kList = 50, kReport = 51, kTabs = 52, kLabel = 60;

constexpr const char* kItems[] = {"一"_sj, "二"_sj, "三"_sj};

constexpr ControlTemplate kAllControls[] = {
    {ControlKind::kStatic, kLabel, "Label", {}},
    {ControlKind::kEdit, kEdit, "", {}},
    {ControlKind::kMultiLineEdit, kMulti, "", {}},
    {ControlKind::kComboBox, kCombo, "", {}, kPlain, kItems},
    {ControlKind::kSimpleComboBox, kSimple, "", {}, kPlain, kItems},
    {ControlKind::kListBox, kList, "", {}, kPlain, kItems},
    {ControlKind::kReportList, kReport, "", {}},
    {ControlKind::kTab, kTabs, "", {}},
    {ControlKind::kRadioButton, kRadioA, "A", {}, kGroupStart},
    {ControlKind::kRadioButton, kRadioB, "B", {}},
    {ControlKind::kRadioButton, kRadioC, "C", {}, kGroupStart},
    {ControlKind::kRadioButton, kRadioD, "D", {}},
    {ControlKind::kCheckBox, kCheck, "", {}},
    {ControlKind::kPushLikeCheckBox, kPushLike, "", {}},
    {ControlKind::kSwatch, kSwatch, "C1", {}},
    {ControlKind::kPushButton, kPush, "Push", {}},
    {ControlKind::kPushButton, kSecondPush, "Second", {}, kDefaultButton},
};
constexpr DialogTemplate kAll = {1, "All", Placement::kCentred, 0, 0, 100, 100, kAllControls};

constexpr ControlTemplate kBareControls[] = {{ControlKind::kEdit, kEdit, "", {}}};
constexpr DialogTemplate kBare = {2, "Bare", Placement::kCentred, 0, 0, 10, 10, kBareControls};

// Writes down every event, in the words "id event", and runs what a test hangs on one.
class Recorder : public CDialog {
 public:
  using CDialog::CDialog;

  CString m_strBound;
  std::string log;
  std::function<void(Recorder&, int, Event)> on_event;
  std::function<void(Recorder&)> on_init;

  void End(int code) { EndDialog(code); }

 private:
  void OnInitDialog() override {
    if (on_init) on_init(*this);
  }
  void DoDataExchange(DataExchange& exchange) override { exchange.Text(kEdit, m_strBound); }
  bool OnMessage(int id, Event event) override {
    static constexpr const char* kNames[] = {"click",  "lost",         "change",     "select",
                                             "double", "tab-changing", "tab-changed"};
    log += std::to_string(id) + " " + kNames[static_cast<int>(event)] + "; ";
    if (on_event) on_event(*this, id, event);
    return CDialog::OnMessage(id, event);
  }
};

// A panel that writes down what it hears of its chooser.
class Chooser : public CFileDialog {
 public:
  Chooser() : CFileDialog(kAll, {{"Maps", {"*.txt"}}}) {}

  std::string log;
  bool throws = false;

 private:
  void OnFileNameChange() override {
    if (throws) throw 1;
    log += "file " + std::string(GetPathName()) + "; ";
  }
  void OnFolderChange() override { log += "folder; "; }
  bool OnMessage(int id, Event) override {
    log += std::to_string(id) + "; ";
    SetAcceptLabel("選択"_sj);
    EndDialog(id);
    return true;
  }
};

class DialogTest : public testing::Test {
 protected:
  ~DialogTest() override { EXPECT_EQ(script.Failures(), ""); }

  // Runs the dialog and returns what it wrote down.
  std::string Run() {
    ScopedFrontEnd scope(&script);
    code = dialog.DoModal();
    return dialog.log;
  }

  ScriptFrontEnd script;
  Recorder dialog{kAll};
  int code = 0;
};

TEST_F(DialogTest, FocusLostComesOnceAndBeforeTheEventOfTheNewControl) {
  script.OpensDialog(1).Type(kEdit, "a").Focus(kEdit).Click(kPush).Click(kPush).Escape();
  EXPECT_EQ(Run(), "40 change; 40 lost; 10 click; 10 click; 2 click; ");
  EXPECT_EQ(code, IDCANCEL);
}

TEST_F(DialogTest, ClicksTurnButtonsOnBeforeTheirHandlerRuns) {
  dialog.on_init = [](Recorder& d) { d.CheckRadioButton(kRadioA, kRadioB, kRadioA); };
  std::vector<bool> seen;
  dialog.on_event = [&](Recorder& d, int id, Event event) {
    if (event == Event::kClick) seen.push_back(d.IsDlgButtonChecked(id));
  };
  script.OpensDialog(1).ShowsCheck(kRadioA, true).Click(kRadioD).Click(kRadioB);
  script.ShowsCheck(kRadioA, false).ShowsCheck(kRadioB, true).ShowsCheck(kRadioD, true);
  script.Click(kCheck).Click(kPushLike).Click(kPushLike).ShowsCheck(kCheck, true);
  script.ShowsCheck(kPushLike, false).Escape();
  Run();
  EXPECT_EQ(seen, (std::vector<bool>{true, true, true, true, false, false}));
}

TEST_F(DialogTest, ListsReportEveryPickAndCombosFollowIt) {
  script.OpensDialog(1).Pick(kCombo, 1).Pick(kCombo, 1).Shows(kCombo, "二");
  script.Type(kCombo, "自由").ShowsSelection(kCombo, 1);
  script.Pick(kSimple, 2).Shows(kSimple, "三").Pick(kList, 0).DoubleClick(kList, 0);
  script.DoubleClick(kList, 2).ShowsSelection(kList, 2).Escape();
  EXPECT_EQ(Run(),
            "40 lost; 42 select; 42 select; 42 change; 42 lost; 43 select; 43 lost; 50 select; 50 "
            "double; "
            "50 select; 50 double; 2 click; ");
}

TEST_F(DialogTest, AReportListHasColumnsAndOpensItsRowByDoubleClickAndEnter) {
  dialog.on_init = [](Recorder& d) {
    d.InsertColumn(kReport, "タイトル"_sj, 120);
    d.InsertColumn(kReport, "File", 240);
    d.AddString(kReport, "x");
    d.SetItemText(kReport, 0, 1, "y.txt");
    d.SetItemText(kReport, 7, 1, "nowhere");
  };
  script.OpensDialog(1).DoubleClick(kReport, 0).Enter().Does([](ControlSession& session) {
    const ControlView view = ControlOf(session, kReport);
    const bool right = view.rows == std::vector<std::vector<std::string>>{{"x", "y.txt"}} &&
                       view.columns.at(0).title == "タイトル" && view.columns.at(1).width == 240;
    return right ? "" : "wrong rows or columns";
  });
  script.Escape();
  EXPECT_EQ(Run(), "40 lost; 51 select; 51 double; 51 double; 2 click; ");
}

TEST_F(DialogTest, ATabTellsBeforeAndAfterAndItsPageTakesPartInTheSheet) {
  Recorder page{kBare};
  dialog.on_init = [&](Recorder& d) {
    d.AddString(kTabs, "one");
    d.AddString(kTabs, "two");
    d.SetCurSel(kTabs, 0);
    page.CreatePage(d, kTabs, 1);
  };
  std::vector<int> selected;
  dialog.on_event = [&](Recorder& d, int, Event event) {
    if (event == Event::kTabChanging || event == Event::kTabChanged) {
      selected.push_back(d.GetCurSel(kTabs));
    }
  };
  script.OpensDialog(1).OnPage(kTabs, 1).Type(kEdit, "hidden").Shows(kEdit, "").OnSheet();
  script.Pick(kTabs, 1).Pick(kTabs, 1).OnPage(kTabs, 1).Type(kEdit, "x").Shows(kEdit, "x");
  script.OnSheet().Focus(kEdit).OnPage(kTabs, 1).Focus(kEdit).Enter().OnSheet().Escape();
  EXPECT_EQ(Run(),
            "40 lost; 52 tab-changing; 52 tab-changed; 52 lost; 40 lost; 11 click; 2 click; ");
  EXPECT_EQ(selected, (std::vector<int>{0, 1}));
  EXPECT_EQ(page.log, "40 change; 40 lost; ");
}

TEST_F(DialogTest, EnterPressesTheFocusedButtonElseTheDefaultOneAndKeepsTheFocus) {
  script.OpensDialog(1).Type(kEdit, "a").Enter().Focus(kPush).Enter().Focus(kCheck).Enter();
  script.Focus(kMulti).Enter().Shows(kMulti, "\r\n").ShowsCheck(kCheck, false).Escape();
  EXPECT_EQ(Run(),
            "40 change; 11 click; 40 lost; 10 click; 10 lost; 11 click; 30 lost; 41 change; "
            "2 click; ");
}

TEST_F(DialogTest, EnterWithoutADefaultButtonIsOkAndReadsTheBoundBoxes) {
  Recorder bare{kBare};
  bare.m_strBound = "before";
  script.OpensDialog(2).Shows(kEdit, "before").Type(kEdit, "after\r\n").Enter();
  ScopedFrontEnd scope(&script);
  EXPECT_EQ(bare.DoModal(), IDOK);
  EXPECT_EQ(bare.m_strBound, "after");
}

TEST_F(DialogTest, NothingReachesWhatTheUserCannotReach) {
  dialog.on_init = [](Recorder& d) {
    d.EnableWindow(kPush, false);
    d.ShowWindow(kEdit, false);
    d.EnableWindow(kSecondPush, false);
    d.EnableWindow(kMulti, false);
  };
  script.OpensDialog(1).ShowsReach(kEdit, false, true).ShowsReach(kPush, true, false);
  script.Does([](ControlSession& session) {
    session.Click(kPush);
    session.Type(kEdit, "a");
    session.Click(kLabel);
    session.Click(kEdit);
    session.Click(999);
    session.Pick(kList, 3);
    session.Pick(kPush, 0);
    dynamic_cast<DialogSession&>(session).Enter();  // the default button is disabled
    return session.Layout().focus == kCombo ? "" : "the focus isn't on the first control in reach";
  });
  script.Shows(kEdit, "").Escape();
  EXPECT_EQ(Run(), "2 click; ");
}

TEST_F(DialogTest, AGestureFindsWhatTheEventsBeforeItLeft) {
  dialog.on_event = [](Recorder& d, int id, Event event) {
    if (event == Event::kChange) d.EnableWindow(id, false);
    if (event == Event::kFocusLost) d.ResetContent(kList);
  };
  script.OpensDialog(1).Pick(kList, 1).ShowsSelection(kList, -1);
  script.Type(kMulti, "a").Enter().Shows(kMulti, "a").Escape();
  EXPECT_EQ(Run(), "40 lost; 50 lost; 41 change; 11 click; 2 click; ");
}

TEST_F(DialogTest, NothingIsDispatchedAfterTheEnd) {
  dialog.on_event = [](Recorder& d, int, Event event) {
    if (event == Event::kFocusLost) d.End(7);
  };
  script.OpensDialog(1).Focus(kEdit).Click(kCheck);
  EXPECT_EQ(Run(), "40 lost; ");
  EXPECT_EQ(code, 7);
  EXPECT_FALSE(dialog.IsDlgButtonChecked(kCheck));
  dialog.on_init = [](Recorder& d) { d.End(5); };
  script.OpensDialog(1);
  Run();
  EXPECT_EQ(code, 5);
}

TEST_F(DialogTest, AnInnerDialogAndAChooserCoverTheOuterOne) {
  Recorder inner{kBare};
  Chooser chooser;
  DialogSession* outer_session = nullptr;
  const auto is_covered = [&](ControlSession&) {
    outer_session->Click(kCheck);
    outer_session->Escape();
    return outer_session->Ended() ? "the outer dialog ended" : "";
  };
  dialog.on_event = [&](Recorder&, int id, Event) {
    if (id != kPush) return;
    inner.DoModal();
    chooser.DoModal();
  };
  script.OpensDialog(1).Does([&](ControlSession& session) {
    outer_session = dynamic_cast<DialogSession*>(&session);
    return "";
  });
  script.Click(kPush).OpensDialog(2).Does(is_covered).Escape();
  script.OpensPanel(1).Does(is_covered).GivesUp().ShowsCheck(kCheck, false).Escape();
  EXPECT_EQ(Run(), "40 lost; 10 click; 2 click; ");
  EXPECT_EQ(inner.log, "2 click; ");
}

TEST_F(DialogTest, APanelHearsOfItsChooserAndLabelsItAndTheChooserEndsItself) {
  Chooser chooser;
  script.OpensPanel(1).SelectsFile("/図/a.txt").SelectsFile("/図/😀.txt").ChangesFolder();
  script.ShowsAcceptLabel("").Click(kRadioB).ShowsCheck(kRadioB, true).ShowsAcceptLabel("選択");
  script.Does([&](ControlSession&) {
    return chooser.GetPathName() == "\\図\\a.txt"_sj ? "" : "another path";
  });
  script.TypesName("/図/b.txt").Accepts();
  script.OpensPanel(1).ShowsAcceptLabel("").ShowsCheck(kRadioB, false).GivesUp();
  ScopedFrontEnd scope(&script);
  EXPECT_EQ(chooser.DoModal(), IDOK);
  EXPECT_EQ(chooser.GetPathName(), "\\図\\b.txt"_sj);
  EXPECT_EQ(chooser.log, "file \\図\\a.txt; folder; 21; "_sj);
  EXPECT_EQ(script.LastFileRequest().refused("/図/😀.txt"), "😀");
  EXPECT_EQ(chooser.DoModal(), IDCANCEL);
}

TEST_F(DialogTest, WhatAHandlerThrowsEndsItsDialogAndNoOther) {
  DialogTemplate growing = kBare;
  Recorder thrower{growing};
  Chooser chooser;
  chooser.throws = true;
  std::vector<int> codes;
  dialog.on_event = [&](Recorder&, int id, Event event) {
    if (event != Event::kClick) return;
    if (id == kPush) codes.push_back(thrower.DoModal());
    if (id == kSwatch) codes.push_back(chooser.DoModal());
  };
  thrower.on_event = [](Recorder& d, int, Event) {
    d.End(IDOK);
    throw 1;
  };
  script.OpensDialog(1).Click(kPush).OpensDialog(2).Type(kEdit, "a");
  script.Click(kPush).OpensDialog(2).Enter();
  script.Does([&](ControlSession&) {
    thrower.on_init = [](Recorder&) { throw 1; };
    return "";
  });
  script.Click(kPush).OpensDialog(2).Click(kCheck).ShowsCheck(kCheck, true);
  script.Does([&](ControlSession& session) {
    growing.controls = {kBareControls, SIZE_MAX / 2};  // more than memory holds
    EXPECT_THROW(thrower.DoModal(), std::exception);
    session.Click(kCheck);
    return "";
  });
  script.ShowsCheck(kCheck, false).Click(kSwatch).OpensPanel(1).SelectsFile("/a");
  script.Click(kCheck).ShowsCheck(kCheck, true).Escape();
  Run();
  EXPECT_EQ(codes, (std::vector<int>{-1, -1, -1, -1}));
  EXPECT_EQ(code, IDCANCEL);
}

TEST_F(DialogTest, WhatAHandlerChangedIsOnTheScreenBeforeAMessageBoxOpens) {
  struct Screen : ScriptFrontEnd, DialogWindow {
    void Refresh(const std::vector<int>& indices) override { refreshed = indices; }
    void RefreshLayout() override { ++layouts; }
    bool RunDialog(DialogSession& session) override {
      session.Start(*this);
      refreshed.clear();
      session.Click(kPush);
      session.Escape();
      return true;
    }
    MessageBoxAnswer ShowMessage(const std::string&) override {
      EXPECT_EQ(refreshed, std::vector<int>{0});
      return MessageBoxAnswer::kOk;
    }
    std::vector<int> refreshed;
    int layouts = 0;
  } screen;
  int answer = 0;
  dialog.on_event = [&](Recorder& d, int id, Event) {
    if (id != kPush) return;
    d.SetDlgItemText(kLabel, "changed");
    d.SetWindowText("new title");
    answer = AfxMessageBox("?");
  };
  ScopedFrontEnd scope(&screen);
  dialog.DoModal();
  EXPECT_GE(screen.layouts, 1);
  EXPECT_EQ(answer, IDOK);
}

TEST_F(DialogTest, TypedTextKeepsTheBytesAroundItAndLeavesOutWhatTheCodePageLacks) {
  const CString odd = CString("\xED\x40") + "x\x81";  // a twin code, and half a character
  dialog.on_init = [&](Recorder& d) { d.SetDlgItemText(kEdit, odd); };
  script.OpensDialog(1).Does([](ControlSession& session) {
    std::string text = ControlOf(session, kEdit).text;
    const TypedText typed = session.Type(kEdit, text.insert(text.find('x'), "😀あ"));
    return typed.refused == "😀" ? "" : "refused \"" + typed.refused + "\"";
  });
  script.Escape();
  Run();
  EXPECT_EQ(dialog.GetDlgItemText(kEdit), CString("\xED\x40") + "あ"_sj + "x\x81");
}

TEST_F(DialogTest, WithoutAFrontEndNothingRuns) {
  dialog.on_init = [](Recorder& d) { d.log += "started; "; };
  ScopedFrontEnd scope(nullptr);
  EXPECT_EQ(dialog.DoModal(), -1);
  EXPECT_EQ(dialog.log, "");
  EXPECT_EQ(AfxMessageBox("?"), IDCANCEL);
  EXPECT_EQ(ChooseColour(1), std::nullopt);
  EXPECT_EQ(ChooseFile({}), std::nullopt);
  int asked = 0;
  WaitUntil([&] { return ++asked == 3; });
  EXPECT_EQ(asked, 3);
}

TEST_F(DialogTest, OperationsOnWhatIsNotThereDoNothing) {
  dialog.SetDlgItemText(999, "x");
  dialog.SetCurSel(kCombo, 7);
  EXPECT_EQ(dialog.GetDlgItemText(999), "");
  EXPECT_EQ(dialog.GetCurSel(kCombo), -1);
  EXPECT_EQ(dialog.GetLBText(kCombo, -1), "");
  EXPECT_EQ(dialog.GetCount(kCombo), 3);
  dialog.ResetContent(kCombo);
  EXPECT_EQ(dialog.GetCount(kCombo), 0);
  dialog.SetDlgItemInt(kLabel, -9999);
  EXPECT_EQ(dialog.GetDlgItemText(kLabel), "-9999");
}

TEST(ScriptFrontEnd, ReportsWhatAScriptGotWrong) {
  struct Case {
    const char* failure;
    std::function<void(ScriptFrontEnd&)> script;
  };
  const Case cases[] = {
      {"unexpected: dialog 1; the script has nothing\n", [](ScriptFrontEnd&) {}},
      {"unexpected: dialog 1; the script has dialog 2\nnot reached: dialog 2\n",
       [](ScriptFrontEnd& s) { s.OpensDialog(2); }},
      {"dialog 1 was left open\n", [](ScriptFrontEnd& s) { s.OpensDialog(1); }},
      {"click 999: no such control\n", [](ScriptFrontEnd& s) { s.OpensDialog(1).Click(999); }},
      {"click 10: the control is disabled\nnot reached: Esc\n",
       [](ScriptFrontEnd& s) { s.OpensDialog(1).Click(kPush).Escape(); }},
      {"pick in 50: no row 3\n", [](ScriptFrontEnd& s) { s.OpensDialog(1).Pick(kList, 3); }},
      {"text of 60: shows \"Label\", not \"x\"\n",
       [](ScriptFrontEnd& s) { s.OpensDialog(1).Shows(kLabel, "x"); }},
      {"not reached: click 11\n",
       [](ScriptFrontEnd& s) { s.OpensDialog(1).Escape().Click(kSecondPush); }},
  };
  for (const Case& one : cases) {
    ScriptFrontEnd script;
    one.script(script);
    Recorder dialog{kAll};
    dialog.on_init = [](Recorder& d) { d.EnableWindow(kPush, false); };
    ScopedFrontEnd scope(&script);
    dialog.DoModal();
    EXPECT_EQ(script.Failures(), one.failure);
  }
}

class Unfitting : public DialogWithMessages<Unfitting> {
 public:
  explicit Unfitting(const DialogTemplate& shown) : DialogWithMessages(shown) {}
  static std::span<const Message<Unfitting>> Messages() {
    static constexpr Message<Unfitting> kMessages[] = {
        {kEdit, kMulti, Event::kFocusLost, &Unfitting::OnLeave}};
    return kMessages;
  }

 private:
  void OnLeave(int) {}
};

TEST(MessageMapDeathTest, NamesNoControlThatTheTemplateLacks) {
  const Unfitting fits(kAll);
  EXPECT_DEATH(Unfitting{kBare}, "MapFits");
}

}  // namespace
}  // namespace orreryui
