// A dialog, or a panel, of plain data: it records the gestures that reach it, and does with them
// the little that a test tells it to.
#ifndef ORRERYUI_TESTS_QT_FAKE_SESSION_H_
#define ORRERYUI_TESTS_QT_FAKE_SESSION_H_

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/front_end.h"

namespace orreryui {

class FakeSession : public DialogSession {
 public:
  using Gestures = std::vector<std::string>;

  DialogLayout layout{700, "試験", Placement::kCentred, 0, 0, 200, 150, kNoControlId};
  std::vector<ControlView> controls;
  Gestures gestures;  // such as "click 3", without "paint"
  int paints = 0;
  bool ended = false;
  std::string refused_characters;                   // what Type leaves out, ASCII only
  std::function<void(const std::string&)> handler;  // runs inside each gesture
  std::function<void()> on_start;
  DialogWindow* window = nullptr;

  // Adds a control below the others and returns it. The reference holds until the next call. The
  // first control that takes input has the focus when the dialog opens, if layout names none.
  ControlView& Add(ControlKind kind, int id, const std::string& text = {}, int height = 14);

  ControlView& At(int id);

  // Changes a control as a handler does and has it drawn anew.
  void Change(int id, const std::function<void(ControlView&)>& change);

  // The gestures since the last call. Focus is recorded where it moves; the other gestures move it
  // without a record of their own.
  Gestures Take() { return std::exchange(gestures, {}); }

  void Start(DialogWindow& dialog) override;
  bool Ended() const override { return ended; }
  DialogLayout Layout() const override { return layout; }
  int ControlCount() const override { return int(controls.size()); }
  ControlView Control(int index) const override { return controls.at(std::size_t(index)); }
  ControlSession* Page(int, int) override { return nullptr; }
  void Focus(int id) override;
  void Click(int id) override;
  TypedText Type(int id, const std::string& text) override;
  TypedText DropFile(int id, const std::string& path) override { return Type(id, "at " + path); }
  void Pick(int id, int row) override;
  void DoubleClick(int id, int row) override;
  void Scroll(int id, int line) override;
  std::optional<TextRange> Find(int, const std::string&, int, bool) override { return {}; }
  void Enter() override { Record("enter"); }
  void Escape() override { Record("escape"); }
  void Paint() override;

 protected:
  void Record(const std::string& gesture);

 private:
  int next_y_ = 4;
};

class FakePanel : public FakeSession, public PanelSession {
 public:
  std::string label;

  void SelectFile(const std::string& path) override { Record("file " + path); }
  void ChangeFolder() override { Record("folder"); }
  std::string AcceptLabel() const override { return label; }
};

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_QT_FAKE_SESSION_H_
