#include <orreryui/orreryui_c.h>

#include <type_traits>
#include <utility>

#include "tests/support/play.h"

namespace orreryui {
namespace {

char kOld[] = "old";

template <class Parameter>
Parameter Argument(bool unfit, const char* text, char** result) {
  if constexpr (std::is_same_v<Parameter, char**>) {
    return result;
  } else if constexpr (std::is_same_v<Parameter, int>) {
    return 0;
  } else {
    return unfit ? text : nullptr;
  }
}

// Each text in turn is one that can't be passed. With an integer or nothing in turn all can.
template <class... Parameters, std::size_t... I>
void ExpectTold(const char* text, int (*function)(Parameters...), int without_window,
                std::index_sequence<I...>) {
  const bool is_text[] = {std::is_same_v<Parameters, const char*>..., false};
  constexpr bool kHasResult = (std::is_same_v<Parameters, char**> || ...);
  for (std::size_t unfit = 0; unfit <= sizeof...(I); ++unfit) {
    SCOPED_TRACE(unfit);
    char* result = kOld;
    EXPECT_EQ(function(Argument<Parameters>(I == unfit, text, &result)...),
              is_text[unfit] ? -static_cast<int>(unfit) - 1 : without_window);
    EXPECT_EQ(result, kHasResult ? nullptr : kOld);
  }
}

TEST(CInterfaceTest, TellsWhichTextIsUnfitAndOtherwiseThatThereIsNoWindow) {
  const ScopedFrontEnd scope(nullptr);
  for (const char* text : {"鎌倉한", "\x8A\x99", "\xEF\xBF\xBD"}) {
    const auto expect = [text]<class... P>(int (*function)(P...), int without_window) {
      ExpectTold(text, function, without_window, std::index_sequence_for<P...>());
    };
    expect(orreryui_OnMapTypeSet, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnMapPalleteSet, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnLegendElevetion, ORRERYUI_OK);
    expect(orreryui_OnDLLAlbumRegist, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnAlbumUpdate, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnDataSourceSet, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnRouteInformation, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnRouteRegistModule, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnDlgMenuBarFileUpdate, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnDlgMenuBarSlideSet, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnSlideSet, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnTextDisplayDaialog, ORRERYUI_OK);
    expect(orreryui_OnMemoDisplay, ORRERYUI_OK);
    expect(orreryui_OnGnpfRetrieveSet, ORRERYUI_GIVEN_UP);
    expect(orreryui_OnRengeConfirm, ORRERYUI_GIVEN_UP);
  }
}

TEST(CInterfaceTest, TextsGoInAndComeBackInUtf8) {
  TestFolder folder;
  folder.Write("BINDER.DAT", std::string("鎌倉\r\n"_sj));
  ScriptFrontEnd script;
  script.OpensDialog(134).Pick(135, 1).Click(1);
  char* result = nullptr;
  EXPECT_EQ(
      Play(script, [&] { return orreryui_OnDataSourceSet(0, "点", folder.Argument(), &result); }),
      ORRERYUI_OK);
  EXPECT_STREQ(result, "1|点|鎌倉");
  orreryui_free(result);
}

TEST(CInterfaceTest, ConsentNeedsNoResult) {
  ScriptFrontEnd enlarge, drop;
  enlarge.OpensDialog(146).Shows(1030, "北緯").Click(103);
  drop.OpensDialog(146).Click(2);
  const auto confirm = [] { return orreryui_OnRengeConfirm("1", "北緯", "3", "4"); };
  EXPECT_EQ(Play(enlarge, confirm), ORRERYUI_OK);
  EXPECT_EQ(Play(drop, confirm), ORRERYUI_GIVEN_UP);
}

}  // namespace
}  // namespace orreryui
