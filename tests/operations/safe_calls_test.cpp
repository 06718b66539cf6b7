// What every operation does where its dialog can't be shown, comes at the wrong time or fails.
#include <orreryui/orreryui.h>

#include <iterator>
#include <new>
#include <thread>

#include "tests/support/play.h"

namespace orreryui {
namespace {

struct Operation {
  const char* name;
  std::function<CString()> call;
  const char* given_up;
};

const Operation kOperations[] = {
    {"OnMapTypeSet", [] { return OnMapTypeSet(0, 1, 0, 0, 0, "", ""); }, ""},
    {"OnMapPalleteSet", [] { return OnMapPalleteSet(0, "", "", 0, 0, 0); }, ""},
    {"OnLegendElevetion", [] { return OnLegendElevetion(0, "", 0), CString(); }, ""},
    {"OnDLLAlbumRegist", [] { return OnDLLAlbumRegist(7, "", "", "", ""); }, "4||||"},
    {"OnAlbumUpdate", [] { return OnAlbumUpdate(7, "", "", "", "", "", "", ""); }, ""},
    {"OnDataSourceSet", [] { return OnDataSourceSet(0, "", ""); }, ""},
    {"OnRouteInformation", [] { return OnRouteInformation(0, "", "", ""); }, ""},
    {"OnRouteRegistModule",
     [] { return OnRouteRegistModule(0, 0, "", "", "", "", "", "", "", "", "", "", "", "", ""); },
     "cancel"},
    {"OnDlgMenuBarFileUpdate",
     [] { return CString(std::to_string(OnDlgMenuBarFileUpdate("", "", 0)).c_str()); }, "-1"},
    {"OnDlgMenuBarSlideSet", [] { return OnDlgMenuBarSlideSet("", "", 0); }, ""},
    {"OnSlideSet", [] { return OnSlideSet(0, 0, 0, "", "", "", "", ""); }, ""},
    {"OnTextDisplayDaialog", [] { return OnTextDisplayDaialog("", "", ""), CString(); }, ""},
    {"OnMemoDisplay", [] { return OnMemoDisplay(0, 0, "", ""), CString(); }, ""},
    {"OnGnpfRetrieveSet", [] { return OnGnpfRetrieveSet(0, 0, 0, 0, 0, 0, 0, 0, 0, "", "", ""); },
     ""},
    {"OnRengeConfirm",
     [] { return CString(std::to_string(OnRengeConfirm("", "", "", "")).c_str()); }, "-1"},
};

static_assert(std::size(kOperations) == ORRERYUI_OPERATION_COUNT);

// A front end in whose dialogs something happens before the user gives up.
class Eventful : public ScriptFrontEnd {
 public:
  explicit Eventful(std::function<void(ControlSession&)> event) : event_(std::move(event)) {}

  bool RunDialog(DialogSession& session) override {
    ++dialogs;
    event_(session);
    return true;
  }

  int dialogs = 0;

 private:
  std::function<void(ControlSession&)> event_;
};

TEST(SafeCalls, WithoutAWindowTheUserHasGivenUp) {
  ScopedFrontEnd scope(nullptr);
  for (const Operation& one : kOperations) EXPECT_EQ(one.call(), one.given_up) << one.name;
}

TEST(SafeCalls, NothingIsThrownAtTheHost) {
  Eventful front_end([](ControlSession&) { throw std::bad_alloc(); });
  ScopedFrontEnd scope(&front_end);
  for (const Operation& one : kOperations) EXPECT_EQ(one.call(), one.given_up) << one.name;
}

TEST(SafeCalls, ASecondOneIsGivenUpAtOnce) {
  const auto call_all = [] {
    for (const Operation& one : kOperations) EXPECT_EQ(one.call(), one.given_up) << one.name;
  };
  Eventful front_end([&](ControlSession&) {
    call_all();
    std::thread(call_all).join();
  });
  ScopedFrontEnd scope(&front_end);
  for (int call = 1; call < 3; ++call) {
    EXPECT_EQ(OnRengeConfirm("", "", "", ""), -1);
    EXPECT_EQ(front_end.dialogs, call);
  }
}

}  // namespace
}  // namespace orreryui
