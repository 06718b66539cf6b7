// The seam between the dialogs and whatever puts them on a screen.
//
// The library keeps the state of a running dialog itself, in a model of plain data. A front end
// draws that model and reports what the user does to it; all rules of behaviour (what a click
// changes, which handler runs, when a focus-lost event is due) stay on the library's side, so that
// every front end behaves alike. This header is the whole contract:
//
//   FrontEnd       implemented by the front end: dialogs, message boxes, choosers, waiting
//   DialogWindow   implemented by the front end: one shown dialog, told what to draw anew
//   DialogSession  implemented by the library: one running dialog, told what the user did. What its
//                  pages and the panel of a file chooser have in common with it is a ControlSession
//
// All text is UTF-8. Controls are named by their number; controls that bear the number
// kNoControlId can't be the object of a gesture. Everything runs on the thread that called
// FrontEnd::RunDialog.
//
// No gesture throws: what goes wrong in one ends its session. The other functions of the library
// may run out of memory. A front end lets nothing that is thrown go on into an event loop or out of
// its own functions: it ends the dialog at hand, or answers as a user who gives up.
//
// The life of a dialog:
//
//   1. The library calls FrontEnd::RunDialog(session). A front end that can't show a window
//      returns false at once and touches nothing.
//   2. The front end calls session.Start(window) exactly once. The dialog fills its controls. It
//      may end itself there (Ended() is then true): the front end shows nothing and returns true.
//   3. The front end draws the dialog from Layout() and Control(i), puts it on the screen and
//      calls Paint(). It calls Paint() again when the system asks it to draw the dialog anew.
//   4. Each thing that the user does becomes one call of a gesture. The handlers run inside that
//      call; they may run further dialogs, message boxes and choosers, so that RunDialog and its
//      siblings are re-entered from inside a gesture. While an inner window is open the gestures
//      of the outer session do nothing, and the front end keeps painting it.
//   5. DialogWindow::Refresh names the controls that changed. It comes before a gesture returns,
//      and before an inner window opens or a wait begins, never from another thread.
//   6. When Ended() is true after a gesture, the front end takes the window off the screen and
//      returns true. No gesture may follow. Closing the window by any means of the desktop is the
//      gesture Escape(): the window stays until Ended() is true. A program that quits waits for
//      nobody: each window that is open gets its Escape() and goes.
#ifndef ORRERYUI_PLATFORM_FRONT_END_H_
#define ORRERYUI_PLATFORM_FRONT_END_H_

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orreryui {

// The number of a control that has none: fixed texts and frames.
inline constexpr int kNoControlId = -1;

enum class ControlKind {
  kPushButton,
  kSwatch,       // a push button that shows a colour instead of its text
  kRadioButton,  // a run of radio buttons is one group; see ControlView::starts_group
  kCheckBox,
  kPushLikeCheckBox,  // a check box that looks like a button which stays down; a run of them may be
                      // a map, see ControlView::starts_group
  kEdit,              // one line
  kMultiLineEdit,     // Enter adds a line break; lines are joined by CR LF
  kStatic,            // plain text; a line feed in it breaks the line
  kGroupBox,
  kComboBox,        // drops down, with an edit field
  kSimpleComboBox,  // an edit field above a list that is always open
  kListBox,
  kReportList,  // rows and titled columns
  kTab,         // items are the captions; pages are the sessions of DialogSession::Page
};

// Dialog units: a quarter of the average width, and an eighth of the height, of a character of the
// window's font.
struct DialogRect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

struct ReportColumn {
  std::string title;
  int width = 0;  // in pixels of a screen at scale 1
};

// What a swatch shows. Colours are 0x00BBGGRR.
struct SwatchView {
  std::optional<std::uint32_t> colour;  // nothing: an empty swatch
  std::optional<std::uint32_t> frame;   // a frame that makes the swatch stand out
  std::string note = {};                // what the colour stands for, if that isn't itself
};

// Which lines of a multi-line edit's text ControlView::text holds. A text that is too long to be
// drawn at once is handed out in parts of whole lines; DialogSession::Scroll goes to another part.
struct TextPart {
  int first = 0;  // the line that the part begins with, counted from 0
  int count = 1;  // of lines in the part
  int all = 1;    // of lines in the whole text
};

// A run of characters in ControlView::text, counted in units of UTF-16. The line end CR LF is two.
struct TextRange {
  int begin = 0;
  int end = 0;
};

// One control as it is to be drawn. The parts that a kind doesn't use stay at their defaults.
struct ControlView {
  ControlKind kind = ControlKind::kStatic;
  int id = kNoControlId;
  DialogRect place;
  bool visible = true;
  bool enabled = true;
  bool shows_only = false;  // a swatch that takes neither clicks nor the focus
  // The first radio button of a group, or the first push-like check box of a map. The run of check
  // boxes that begins here lies as the parts of the map do. It is one stop of the tab key; an arrow
  // key goes to the neighbour on its side, and typing the beginning of a text or of a description
  // goes to its button.
  bool starts_group = false;
  bool is_default = false;  // the push button that Enter presses
  bool right_aligned = false;
  bool tall_scroll_bar = false;  // a multi-line edit that always shows its vertical scroll bar
  bool takes_file = false;       // an edit of one line onto which a file can be dropped
  bool grows = false;            // gets the room of a window that the user makes larger
  bool checked = false;
  std::string text;         // label, edit text, or the edit field of a combo box
  std::string description;  // for a screen reader, beside the label: what that leaves open; of a
                            // part of a map, how its name is read
  TextPart part;            // of a multi-line edit: what of its text is in `text`
  std::vector<ReportColumn> columns;
  std::vector<std::vector<std::string>> rows;  // list kinds have one string a row
  int selection = -1;                          // selected row or tab, -1 for none
  SwatchView swatch;
};

enum class Placement {
  kAtPosition,  // at x, y in dialog units from the corner of the host's window, or of the screen
  kCentred,     // on the owner, or on the screen
  kOnPointer,   // centred on the mouse pointer
  kAtPixel,     // at x, y on the screen, in pixels as windows are placed there
};

// The dialog itself. Its size is that of the area inside the window's frame. The user can change
// the size of a window that has a control which grows; what stands beside and below that control
// moves.
struct DialogLayout {
  int number = 0;  // the template's number
  std::string title;
  Placement placement = Placement::kCentred;
  int x = 0;
  int y = 0;
  int width = 0;  // in dialog units
  int height = 0;
  int focus = kNoControlId;  // the control that has the input focus
};

// What became of text that the user typed: the text that the box is to hold, and the characters
// that the library's character set lacks and that were therefore left out, in order.
struct TypedText {
  std::string text;
  std::string refused;
};

// One dialog on the screen.
class DialogWindow {
 public:
  virtual ~DialogWindow() = default;

  // The controls at these indices, as Control(i) counts them, look different now.
  virtual void Refresh(const std::vector<int>& indices) = 0;

  // Layout() has changed, title, place or focus, or the label that a panel gives.
  virtual void RefreshLayout() = 0;
};

// The controls of one template while they are on the screen: those of a dialog, of one of its pages
// or of a file chooser's panel. A gesture on a control that is hidden, disabled, unknown or of the
// wrong kind, or while another window is above this one, does nothing.
class ControlSession {
 public:
  virtual ~ControlSession() = default;

  // `window` must live until RunDialog or ChooseFile returns. The library doesn't own it.
  virtual void Start(DialogWindow& window) = 0;
  virtual bool Ended() const = 0;

  virtual DialogLayout Layout() const = 0;
  virtual int ControlCount() const = 0;              // in tab order
  virtual ControlView Control(int index) const = 0;  // 0 to ControlCount() - 1

  // The gestures. Each but Scroll and Find moves the focus to its control first, as the user's hand
  // does.
  virtual void Focus(int id) = 0;
  virtual void Click(int id) = 0;  // push buttons, radio buttons, check boxes
  // The box, or the part of its text that is shown, now reads `text`.
  virtual TypedText Type(int id, const std::string& text) = 0;
  // A file has been dropped onto a box that takes one: its native path. The box then reads as if
  // the file had been chosen.
  virtual TypedText DropFile(int id, const std::string& path) = 0;
  virtual void Pick(int id, int row) = 0;  // a row of a list or combo box, or a tab
  // Selects the row if it isn't selected yet, then reports the double click.
  virtual void DoubleClick(int id, int row) = 0;

  // The user has scrolled a multi-line edit to this line: the part that is shown becomes the one
  // around it. A look at the text and no more: the focus stays where it is.
  virtual void Scroll(int id, int line) = 0;

  // The user looks for `text` in the whole text of a multi-line edit, from the place `from` in the
  // part that is shown: forwards the first one that begins there or behind it, backwards the last
  // one that begins before it, in the end from the other end on. ASCII letters are found in either
  // case. The part that is shown becomes one that has the place; the result says where. Nothing if
  // there is no such text. A look at the text and no more, as Scroll.
  virtual std::optional<TextRange> Find(int id, const std::string& text, int from,
                                        bool backwards) = 0;

  // The system asks to draw anew.
  virtual void Paint() = 0;
};

// A dialog with a window of its own.
class DialogSession : public virtual ControlSession {
 public:
  // The page that lies over a tab control while tab `tab` is selected, or nothing. The page has
  // controls of its own, and lives as long as this session; its focus and its end are those of this
  // session. A page comes into being in Start or in a gesture, such as the first Paint; it is
  // filled by then, and its own Start only joins it to its window.
  virtual ControlSession* Page(int tab_control, int tab) = 0;

  // Enter presses the focused push button, else the default one. In a multi-line edit it adds a
  // line break at the end of the text; a front end that knows the place of the cursor types it with
  // Type instead.
  virtual void Enter() = 0;
  virtual void Escape() = 0;
};

// A panel below the list of a file chooser. Enter, Esc and the end are the chooser's; a session
// that ends itself (Ended() after a gesture) closes the chooser as if the user had given up.
class PanelSession : public virtual ControlSession {
 public:
  // The row of a file, not of a folder, is the one that is selected now; what is typed into the
  // name field selects none. The full path, in the system's own form.
  virtual void SelectFile(const std::string& path) = 0;

  // The chooser shows the files of another folder now.
  virtual void ChangeFolder() = 0;

  // What the chooser's accepting button reads, as far as it isn't empty.
  // DialogWindow::RefreshLayout tells that it has changed.
  virtual std::string AcceptLabel() const = 0;
};

enum class MessageBoxAnswer { kOk, kCancel };

struct FileFilter {
  std::string label;
  std::vector<std::string> patterns;  // such as *.txt
};

struct FileChooserRequest {
  std::string start_name;         // what the name field holds at the start; may hold wildcards,
                                  // and the folder to start in
  std::string default_extension;  // without the dot; for a name that has none and isn't there
  bool must_exist = false;
  std::vector<FileFilter> filters;
  bool preview_pictures = false;  // the chooser shows the picture in the file that is selected

  // Which characters of a path make it one that can't be used; a file with such a path isn't to be
  // chosen. Where this is null, any may be.
  std::function<std::string(const std::string& path)> refused = nullptr;

  PanelSession* panel = nullptr;  // laid below the chooser's own controls; the caller keeps it
};

class FrontEnd {
 public:
  virtual ~FrontEnd() = default;

  // Shows the dialog modally until it has ended. False: it couldn't be shown, or not until its end.
  virtual bool RunDialog(DialogSession& session) = 0;

  // A warning with OK and Cancel. Esc and the close box are Cancel.
  virtual MessageBoxAnswer ShowMessage(const std::string& text) = 0;

  // The full path, in the system's own form, of the file that the user chose; nothing if the user
  // gave up.
  virtual std::optional<std::string> ChooseFile(const FileChooserRequest& request) = 0;

  // Colours are 0x00BBGGRR. Nothing if the user gave up.
  virtual std::optional<std::uint32_t> ChooseColour(std::uint32_t start) = 0;

  virtual void Beep() = 0;

  // Returns once `done` returns true, which it asks at least twenty times a second, or the program
  // quits. Windows that are open keep painting themselves and take no input meanwhile.
  virtual void WaitUntil(const std::function<bool()>& done) = 0;
};

// The symbol asked of a front end that is a plug-in: `FrontEnd* orreryui_front_end(int version)`,
// with C linkage. The plug-in owns the object and keeps it until the process ends. Null if it was
// built for another version of this header or can't show a window in this process. It may be
// called again after it returned null.
inline constexpr int kFrontEndVersion = 4;
inline constexpr char kFrontEndSymbol[] = "orreryui_front_end";
using FrontEndFunction = FrontEnd*(int version);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_FRONT_END_H_
