#include "tests/qt/fake_session.h"

#include <stdexcept>

namespace orreryui {
namespace {

std::string Name(const std::string& verb, int id) { return verb + ' ' + std::to_string(id); }

}  // namespace

ControlView& FakeSession::Add(ControlKind kind, int id, const std::string& text, int height) {
  ControlView view;
  view.kind = kind;
  view.id = id;
  view.text = text;
  view.place = {6, next_y_, 180, height};
  next_y_ += height + 4;
  layout.height = next_y_;
  controls.push_back(view);
  return controls.back();
}

ControlView& FakeSession::At(int id) {
  for (ControlView& view : controls) {
    if (view.id == id) return view;
  }
  throw std::out_of_range(Name("no control", id));
}

void FakeSession::Change(int id, const std::function<void(ControlView&)>& change) {
  ControlView& view = At(id);
  change(view);
  window->Refresh({int(&view - controls.data())});
}

void FakeSession::Start(DialogWindow& dialog) {
  window = &dialog;
  if (on_start) on_start();
}

void FakeSession::Focus(int id) {
  if (layout.focus == id) return;
  layout.focus = id;
  Record(Name("focus", id));
}

void FakeSession::Click(int id) {
  layout.focus = id;
  Record(Name("click", id));
}

TypedText FakeSession::Type(int id, const std::string& text) {
  TypedText typed;
  for (char character : text) {
    const bool known = refused_characters.find(character) == std::string::npos;
    (known ? typed.text : typed.refused) += character;
  }
  layout.focus = id;
  At(id).text = typed.text;
  Record(Name("type", id) + ' ' + typed.text);
  return typed;
}

void FakeSession::Pick(int id, int row) {
  ControlView& view = At(id);
  layout.focus = id;
  view.selection = row;
  const bool combo =
      view.kind == ControlKind::kComboBox || view.kind == ControlKind::kSimpleComboBox;
  if (combo) view.text = view.rows.at(std::size_t(row)).front();
  Record(Name("pick", id) + ' ' + std::to_string(row));
}

void FakeSession::DoubleClick(int id, int row) {
  Record(Name("double", id) + ' ' + std::to_string(row));
}

void FakeSession::Scroll(int id, int line) {
  Record(Name("scroll", id) + ' ' + std::to_string(line));
}

void FakeSession::Paint() {
  ++paints;
  if (handler) handler("paint");
}

void FakeSession::Record(const std::string& gesture) {
  gestures.push_back(gesture);
  if (handler) handler(gesture);
}

}  // namespace orreryui
