// The palette editor: what its controls do. Its work on the files is in palette_store_test.cpp.
#include <gtest/gtest.h>

#include <functional>

#include "tests/operations/palette_fixture.h"

namespace orreryui {
namespace {

using enum MessageBoxAnswer;

TEST_F(PaletteTest, ShowsTheListAndTheColoursOfTheChosenPalette) {
  script.ShowsTitle("  配色の設定")
      .ShowsRows(kNames, {"自然", "冬", kNew})
      .ShowsSelection(kNames, 1);
  script.Shows(kNames, "冬").Shows(kNote, "配色の登録数=2").Shows(kEdit, "編集");
  script.ShowsCheck(kCheck, false).Does(ShowsSwatches(kSlots, Colours(kWinter))).Click(1);
  EXPECT_EQ(Call(1), "1|20|20|20|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), List(2));
}

TEST_F(PaletteTest, CancelReturnsNothing) {
  script.Click(2);
  EXPECT_EQ(Call(0), "");
  ScriptFrontEnd other;
  other.OpensDialog(177).Escape();
  ScopedFrontEnd scope(&other);
  EXPECT_EQ(OnMapPalleteSet(0, "", folder.Argument(), 0, 0, 0), "");
  EXPECT_EQ(other.Failures(), "");
}

TEST_F(PaletteTest, ARowThatTheListLacksStaysTheChosenOne) {
  for (const int selected : {-1, 3, 99}) {
    ScriptFrontEnd visit;
    visit.OpensDialog(177).ShowsSelection(kNames, -1).Shows(kNames, "");
    visit.Does(ShowsSwatches(kSlots, Colours({}))).Click(kEdit).Click(kDelete).Click(1);
    ScopedFrontEnd scope(&visit);
    CString expected;
    expected.Format("%d|0|0|0|1|2|3|4|5|6|", selected);
    EXPECT_EQ(OnMapPalleteSet(selected, "", folder.Argument(), 0, kLake, kBack), expected);
    EXPECT_EQ(visit.Failures(), "");
  }
  EXPECT_EQ(folder.Read(kList), List(2));
}

TEST_F(PaletteTest, PickingARowLoadsItsPalette) {
  script.Pick(kNames, 0).Does(ShowsSwatches(kSlots, Colours(kNatural)));
  script.Shows(kNames, "自然").Click(1);
  EXPECT_EQ(Call(1), "0|10|10|10|1|2|3|4|5|6|");
}

TEST_F(PaletteTest, TheCheckFillsInWhatThePaletteLeavesOut) {
  folder.Write("Orbis1.plt",
               "   0   0   0   0\r\n   1   1   0   0\r\n1200  80   0   0\r\n4000 255   0   0\r\n");
  const std::map<int, std::uint32_t> exact = {{12, 1}, {10, 255}};
  const std::map<int, std::uint32_t> filled = {{12, 1},  {2, 6},   {3, 13},  {4, 33},  {5, 66},
                                               {6, 100}, {7, 133}, {8, 166}, {9, 200}, {10, 255}};
  script.Does(ShowsSwatches(kSlots, Colours(exact))).Click(kCheck).ShowsCheck(kCheck, true);
  script.Does(ShowsSwatches(kSlots, Colours(filled))).Click(kCheck).ShowsCheck(kCheck, false);
  script.Does(ShowsSwatches(kSlots, Colours(exact))).Click(kCheck).Pick(kNames, 1);
  script.ShowsCheck(kCheck, false).Does(ShowsSwatches(kSlots, Colours(kWinter)));
  // A click on a swatch ends the check, but leaves the colours that it filled in.
  script.Pick(kNames, 0).Click(kCheck).Click(Swatch(6)).ChoosesColour(100, std::nullopt);
  script.ShowsCheck(kCheck, false).Does(ShowsSwatches(kSlots, Colours(filled))).Escape();
  Call(0);
}

TEST_F(PaletteTest, AColourIsChosenForOneSlotAndTheClickedSwatchStandsOut) {
  auto changed = kNatural;
  changed[2] = 0x0000FF;
  script.Does(ShowsFramed({})).Click(Swatch(3)).ChoosesColour(0, std::nullopt);
  script.Does(ShowsFramed({Swatch(3)})).Shows(kEdit, "編集").Shows(kNote, "配色の登録数=2");
  script.Click(Swatch(2)).ChoosesColour(0x040302, 0x040302).Shows(kEdit, "編集");
  script.Click(Swatch(2)).ChoosesColour(0x040302, 0x0000FF).Does(ShowsFramed({Swatch(2)}));
  script.Does(ShowsSwatches(kSlots, Colours(changed))).Shows(kEdit, "更新").Shows(kNote, kHint);
  script.Paint().Does(ShowsFramed({Swatch(2)})).Does(ShowsSwatches(kSlots, Colours(changed)));
  script.Pick(kNames, 1).Shows(kEdit, "更新").Click(2);
  EXPECT_EQ(Call(0), "");
}

TEST_F(PaletteTest, LakesAndBackgroundGoToTheResultAndNotToTheFile) {
  script.Click(Swatch(11)).ChoosesColour(kLake, 0x0C0B0A).Shows(kEdit, "更新");
  script.Click(Swatch(13)).ChoosesColour(kBack, 0xFFFFFF).Pick(kNames, 1).Click(1);
  EXPECT_EQ(Call(0), "1|20|20|20|10|11|12|255|255|255|");
  EXPECT_EQ(folder.Read("Orbis1.plt"), Text(kNatural));
}

TEST_F(PaletteTest, TheNewEntryChoosesLakesAndBackgroundFromBlack) {
  script.Click(Swatch(11)).ChoosesColour(0, 0x0C0B0A).Click(Swatch(13)).ChoosesColour(0, 7u);
  script.Click(Swatch(11)).ChoosesColour(0x0C0B0A, std::nullopt).Click(1);
  EXPECT_EQ(Call(2), "2|0|0|0|10|11|12|7|0|0|");
}

TEST_F(PaletteTest, EachSwatchOfAnElevationIsSavedInItsRow) {
  std::map<int, std::uint32_t> colours;
  for (const int slot : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12}) {
    const std::uint32_t old = kNatural.contains(slot) ? kNatural.at(slot) : 0;
    colours[slot] = 0x010203u * static_cast<unsigned>(slot);
    ScriptFrontEnd visit;
    visit.OpensDialog(177).Click(Swatch(static_cast<std::size_t>(slot)));
    visit.ChoosesColour(old, colours[slot]).Click(1);
    visit.ShowsMessage("配色を更新しますか！", kOk)
        .ShowsMessage("現在選択中の配色を更新します！", kOk);
    ScopedFrontEnd scope(&visit);
    OnMapPalleteSet(0, "", folder.Argument(), 0, kLake, kBack);
    EXPECT_EQ(visit.Failures(), "") << slot;
  }
  script.Does(ShowsSwatches(kSlots, Colours(colours))).Escape();
  Call(0);
}

struct OkCase {
  const char* what;
  int selected;
  std::function<void(ScriptFrontEnd&)> play;  // up to OK and the answers
  std::string result;
  std::map<int, std::uint32_t> natural;  // what is in "Orbis1.plt" afterwards
  bool first_written = false;
  bool second_written = false;
};

TEST_F(PaletteTest, OkAsksAboutTheChosenRowIfAChangeIsPending) {
  constexpr char kAskSaveOld[] = "配色を更新しますか！";
  constexpr char kAskSaveNew[] = "配色を登録しますか！";
  constexpr char kAskUpdate[] = "現在選択中の配色を更新します！";
  const auto change = [this](ScriptFrontEnd& visit, std::size_t slot) -> ScriptFrontEnd& {
    return visit.Click(Swatch(slot)).ChoosesColour(Colours(kNatural)[slot - 1].value(), 9u);
  };
  auto changed = kNatural;
  changed[2] = 9;
  const OkCase cases[] = {
      {"confirmed twice", 0,
       [&](ScriptFrontEnd& visit) {
         change(visit, 2).Click(1).ShowsMessage(kAskSaveOld, kOk).ShowsMessage(kAskUpdate, kOk);
       },
       "0|10|10|10|1|2|3|4|5|6|", changed, true},
      {"given up at the second question", 0,
       [&](ScriptFrontEnd& visit) {
         change(visit, 2).Click(1).ShowsMessage(kAskSaveOld, kOk).ShowsMessage(kAskUpdate, kCancel);
       },
       "0|10|10|10|1|2|3|4|5|6|", kNatural},
      {"a new sea, which is not in the result", 0,
       [&](ScriptFrontEnd& visit) { change(visit, 1).Click(1).ShowsMessage(kAskSaveOld, kCancel); },
       "0|10|10|10|1|2|3|4|5|6|", kNatural},
      {"the same colour again", 0,
       [&](ScriptFrontEnd& visit) {
         visit.Click(Swatch(2)).ChoosesColour(0x040302, 0x040302).Click(1);
       },
       "0|10|10|10|1|2|3|4|5|6|", kNatural},
      {"dropped by a lake colour", 0,
       [&](ScriptFrontEnd& visit) { change(change(visit, 2), 11).Click(1); },
       "0|10|10|10|9|0|0|4|5|6|", kNatural},
      {"another palette is chosen behind the change", 0,
       [&](ScriptFrontEnd& visit) {
         change(visit, 2).Pick(kNames, 1).Click(1);
         visit.ShowsMessage(kAskSaveOld, kOk).ShowsMessage(kAskUpdate, kOk);
       },
       "1|20|20|20|1|2|3|4|5|6|", kNatural, false, true},
      {"the new entry is chosen behind the change, and the sea is the last palette's", 0,
       [&](ScriptFrontEnd& visit) {
         change(visit, 2).Pick(kNames, 2).Click(1).ShowsMessage(kAskSaveNew, kCancel);
       },
       "2|10|10|10|1|2|3|4|5|6|", kNatural},
      {"a palette is chosen behind a change of the new entry", 2,
       [&](ScriptFrontEnd& visit) {
         visit.Click(Swatch(5)).ChoosesColour(0, 9u).Pick(kNames, 0).Click(1);
         visit.ShowsMessage(kAskSaveOld, kOk).ShowsMessage(kAskUpdate, kOk);
       },
       "0|10|10|10|1|2|3|4|5|6|", kNatural, true},
  };
  for (const OkCase& c : cases) {
    folder.Write("Orbis1.plt", Text(kNatural));
    folder.Write("Orbis2.plt", Text(kWinter));
    ScriptFrontEnd visit;
    c.play(visit.OpensDialog(177));
    visit.OpensDialog(177).Does(ShowsSwatches(kSlots, Colours(c.natural))).Pick(kNames, 1);
    visit.Does(ShowsSwatches(kSlots, Colours(kWinter))).Escape();
    ScopedFrontEnd scope(&visit);
    EXPECT_EQ(OnMapPalleteSet(c.selected, "", folder.Argument(), 0, kLake, kBack), c.result.c_str())
        << c.what;
    EXPECT_EQ(folder.Read("Orbis1.plt") != Text(kNatural), c.first_written) << c.what;
    EXPECT_EQ(folder.Read("Orbis2.plt") != Text(kWinter), c.second_written) << c.what;
    OnMapPalleteSet(0, "", folder.Argument(), 0, kLake, kBack);
    EXPECT_EQ(visit.Failures(), "") << c.what;
    EXPECT_EQ(folder.Read(kList), List(2)) << c.what;
  }
}

TEST_F(PaletteTest, TheNewEntryKeepsColoursOfItsOwn) {
  std::map<int, std::uint32_t> colours = {{1, 0xFF0000}, {10, 0xFFFFFF}};
  script.Does(ShowsSwatches(kSlots, Colours(colours)));
  script.Click(Swatch(5)).ChoosesColour(0, 0x112233).Shows(kEdit, kNew);
  script.Click(Swatch(1)).ChoosesColour(0xFF0000, 0x445566);
  script.Pick(kNames, 0).Does(ShowsSwatches(kSlots, Colours(kNatural))).Pick(kNames, 2);
  colours[5] = 0x112233;
  colours[1] = 0x445566;
  script.Does(ShowsSwatches(kSlots, Colours(colours)));
  script.Click(kCheck).Does(ShowsSwatches(kSlots, Colours({}))).Click(1);
  script.ShowsMessage("配色を登録しますか！", kCancel);
  EXPECT_EQ(Call(2), "2|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), List(2));
}

TEST_F(PaletteTest, ALongListIsShownUpToItsTwentiethLine) {
  for (const int count : {18, 19, 20, 21, 500}) {
    folder.Write(kList, List(count));
    std::vector<std::string> rows;
    for (int i = 0; i < std::min(count, 20); ++i) rows.push_back(NameOf(i));
    if (count == 18) rows.push_back(kNew);
    ScriptFrontEnd visit;
    visit.OpensDialog(177).ShowsRows(kNames, rows);
    visit.Shows(kNote, "配色の登録数=" + std::to_string(std::min(count, 20))).Escape();
    ScopedFrontEnd scope(&visit);
    OnMapPalleteSet(0, "", folder.Argument(), 0, 0, 0);
    EXPECT_EQ(visit.Failures(), "") << count;
  }
}

}  // namespace
}  // namespace orreryui
