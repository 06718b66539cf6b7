// The palette editor: what its controls do. Its work on the files is in palette_store_test.cpp.
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
  EXPECT_EQ(Call(script, 1), "1|20|20|20|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), List(2));
}

TEST_F(PaletteTest, ARowThatTheListLacksStaysTheChosenOne) {
  for (const int selected : {-1, 3, 99}) {
    ScriptFrontEnd visit;
    visit.OpensDialog(177).ShowsSelection(kNames, -1).Shows(kNames, "");
    visit.Does(ShowsSwatches(kSlots, Colours({}))).Click(kEdit).Click(kDelete).Click(1);
    EXPECT_EQ(Call(visit, selected), std::to_string(selected) + "|0|0|0|1|2|3|4|5|6|");
  }
  EXPECT_EQ(folder.Read(kList), List(2));
}

TEST_F(PaletteTest, TheCheckFillsInWhatThePaletteLeavesOut) {
  folder.Write("Orbis1.plt",
               "   0   0   0   0\r\n   1   1   0   0\r\n1200  80   0   0\r\n4000 255   0   0\r\n");
  const Colour exact = {{12, 1}, {10, 255}};
  const Colour filled = {{12, 1},  {2, 6},   {3, 13},  {4, 33},  {5, 66},
                         {6, 100}, {7, 133}, {8, 166}, {9, 200}, {10, 255}};
  const std::string note = "前後の標高の色から補間";
  const std::vector<int> left_out = {Swatch(9), Swatch(8), Swatch(7), Swatch(6),
                                     Swatch(5), Swatch(4), Swatch(3), Swatch(2)};
  script.Does(ShowsSwatches(kSlots, Colours(exact))).Does(ShowsNoted(left_out, note));
  script.Click(kCheck).ShowsCheck(kCheck, true).Does(ShowsNoted({}, note));
  script.Does(ShowsSwatches(kSlots, Colours(filled))).Click(kCheck).ShowsCheck(kCheck, false);
  script.Does(ShowsSwatches(kSlots, Colours(exact))).Click(kCheck).Pick(kNames, 1);
  script.ShowsCheck(kCheck, false).Does(ShowsSwatches(kSlots, Colours(kWinter)));
  // A click on a swatch ends the check, but leaves the colours that it filled in.
  script.Pick(kNames, 0).Click(kCheck).Click(Swatch(6)).ChoosesColour(100, std::nullopt);
  script.ShowsCheck(kCheck, false).Does(ShowsSwatches(kSlots, Colours(filled))).Escape();
  Call(script, 0);
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
  EXPECT_EQ(Call(script, 0), "");
}

TEST_F(PaletteTest, LakesAndBackgroundGoToTheResultAndNotToTheFile) {
  script.Click(Swatch(11)).ChoosesColour(kLake, 0x0C0B0A).Shows(kEdit, "更新");
  script.Click(Swatch(13)).ChoosesColour(kBack, 0xFFFFFF).Pick(kNames, 1).Click(1);
  EXPECT_EQ(Call(script, 0), "1|20|20|20|10|11|12|255|255|255|");
  EXPECT_EQ(folder.Read("Orbis1.plt"), Text(kNatural));
  // The new entry's start from black.
  script.OpensDialog(177).Click(Swatch(11)).ChoosesColour(0, 0x0C0B0A);
  script.Click(Swatch(13)).ChoosesColour(0, 7u);
  script.Click(Swatch(11)).ChoosesColour(0x0C0B0A, std::nullopt).Click(1);
  EXPECT_EQ(Call(script, 2), "2|0|0|0|10|11|12|7|0|0|");
}

TEST_F(PaletteTest, EachSwatchOfAnElevationIsSavedInItsRow) {
  Colour colours;
  for (const int slot : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12}) {
    const auto place = static_cast<std::size_t>(slot);
    colours[slot] = 0x010203u * static_cast<unsigned>(slot);
    script.Click(Swatch(place)).ChoosesColour(Colours(kNatural)[place - 1].value(), colours[slot]);
  }
  script.Click(1).ShowsMessage(kAskOld, kOk);
  script.ShowsMessage(kAskUpdate, kOk);
  Call(script, 0);
  script.OpensDialog(177).Does(ShowsSwatches(kSlots, Colours(colours))).Escape();
  Call(script, 0);
}

TEST_F(PaletteTest, OkAsksAboutTheChosenRowIfAChangeIsPending) {
  constexpr char kUnchanged[] = "0|10|10|10|1|2|3|4|5|6|";
  auto changed = kNatural;
  changed[2] = 9;
  const struct {
    std::vector<std::size_t> slots;  // that get the colour 9
    int picked;
    const char* question;
    int confirmed;  // so many times
    const char* result;
    Colour natural;  // what is in "Orbis1.plt" afterwards
  } cases[] = {
      {{2}, 0, kAskOld, 2, kUnchanged, changed},
      {{2}, 0, kAskOld, 1, kUnchanged, kNatural},
      {{1}, 0, kAskOld, 0, kUnchanged, kNatural},  // the new sea isn't in the result
      {{2, 11}, 0, nullptr, 0, "0|10|10|10|9|0|0|4|5|6|", kNatural},  // dropped by a lake colour
      {{2}, 1, kAskOld, 2, "1|20|20|20|1|2|3|4|5|6|", kNatural},      // another palette is written
      {{2}, 2, kAskNew, 0, "2|10|10|10|1|2|3|4|5|6|", kNatural},      // with the last palette's sea
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    folder.Write("Orbis1.plt", Text(kNatural));
    folder.Write("Orbis2.plt", Text(kWinter));
    ScriptFrontEnd visit, look;
    visit.OpensDialog(177);
    for (const std::size_t slot : c.slots) {
      visit.Click(Swatch(slot)).ChoosesColour(Colours(kNatural)[slot - 1].value(), 9u);
    }
    if (c.picked > 0) visit.Pick(kNames, c.picked);
    visit.Click(1);
    if (c.question) visit.ShowsMessage(c.question, c.confirmed > 0 ? kOk : kCancel);
    if (c.confirmed > 0) visit.ShowsMessage(kAskUpdate, c.confirmed > 1 ? kOk : kCancel);
    EXPECT_EQ(Call(visit, 0), c.result);
    EXPECT_EQ(folder.Read("Orbis2.plt") != Text(kWinter), c.picked == 1);
    look.OpensDialog(177).Does(ShowsSwatches(kSlots, Colours(c.natural))).Escape();
    Call(look, 0);
  }
  EXPECT_EQ(folder.Read(kList), List(2));
}

TEST_F(PaletteTest, TheNewEntryKeepsColoursOfItsOwn) {
  Colour colours = {{1, 0xFF0000}, {10, 0xFFFFFF}};
  script.Does(ShowsSwatches(kSlots, Colours(colours)));
  script.Click(Swatch(5)).ChoosesColour(0, 0x112233).Shows(kEdit, kNew);
  script.Click(Swatch(1)).ChoosesColour(0xFF0000, 0x445566);
  script.Pick(kNames, 0).Does(ShowsSwatches(kSlots, Colours(kNatural))).Pick(kNames, 2);
  colours[5] = 0x112233;
  colours[1] = 0x445566;
  script.Does(ShowsSwatches(kSlots, Colours(colours)));
  script.Click(kCheck).Does(ShowsSwatches(kSlots, Colours({}))).Click(1);
  script.ShowsMessage(kAskNew, kCancel);
  EXPECT_EQ(Call(script, 2), "2|0|0|0|1|2|3|4|5|6|");
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
    Call(visit, 0);
  }
}

}  // namespace
}  // namespace orreryui
