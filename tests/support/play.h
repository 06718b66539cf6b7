// What tests need that play dialogs by a script on real files.
#ifndef ORRERYUI_TESTS_SUPPORT_PLAY_H_
#define ORRERYUI_TESTS_SUPPORT_PLAY_H_

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "front_ends/script/script_front_end.h"
#include "platform/dialogs/front_end_loader.h"
#include "platform/strings/code_page_932.h"
#include "platform/strings/japanese_literal.h"
#include "tests/support/test_folder.h"

namespace orreryui {

// What `call` returns, with the windows and the user of this script. All of it must come to pass.
template <class Call>
auto Play(ScriptFrontEnd& script, Call call) {
  struct Check {
    ~Check() { EXPECT_EQ(script.Failures(), ""); }
    ScriptFrontEnd& script;
  };
  const ScopedFrontEnd scope(&script);
  const Check check{script};
  return call();
}

// What a control shows.
inline ControlView ControlOf(const ControlSession& session, int id) {
  for (int i = 0; i < session.ControlCount(); ++i) {
    if (ControlView view = session.Control(i); view.id == id) return view;
  }
  throw std::out_of_range("no control " + std::to_string(id));
}

// A step of a script that finds nothing wrong.
inline ScriptFrontEnd::Action Silently(std::function<void()> step) {
  return [step = std::move(step)](ControlSession&) {
    step();
    return "";
  };
}

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_SUPPORT_PLAY_H_
