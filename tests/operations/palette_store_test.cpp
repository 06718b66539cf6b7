// The palette editor on its files: register, update, delete, edit.
#include "tests/operations/palette_fixture.h"
#include "tests/support/failing_disk.h"

namespace orreryui {
namespace {

using enum MessageBoxAnswer;

constexpr char kAskRegister[] = "新規に配色を登録します！";
constexpr char kNameMissing[] = "配色の名称を入力してください！";
constexpr char kNameTaken[] = "配色の名称を新規に入力してください！";
constexpr char kListFull[] = "配色は許容限度(20)まで登録されています！";
constexpr char kAskDelete[] = "現在選択中の配色を削除します！";

TEST_F(PaletteTest, RegistersThePaletteOfTheNewEntry) {
  script.Click(Swatch(2)).ChoosesColour(0, 0x030201).Type(kNames, "ー表|[ＡＢ").Click(kEdit);
  script.ShowsMessage(kAskRegister, kOk);
  script.ShowsRows(kNames, {"自然", "冬", "ー表|[ＡＢ"}).ShowsSelection(kNames, -1);
  script.Shows(kNames, "").Shows(kEdit, kNew).Click(1);
  EXPECT_EQ(Call(script, 2), "2|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), List(2) + "ー表|[ＡＢ$Orbis3.plt\r\n"_sj);
  EXPECT_EQ(folder.Read("Orbis3.plt"), ";" + std::string("ー表|[ＡＢ"_sj) + "  " +
                                           folder.Path().string() + "/Orbis3.plt  \r\n" +
                                           "   0   0   0 255    青（海域）  1:15\r\n"_sj +
                                           "   1   0   0   0         0m\r\n"
                                           " 100   1   2   3       100m\r\n"
                                           "4000 255 255 255     4,000m\r\n");
}

TEST_F(PaletteTest, ARegistrationAsksForANameThatIsNew) {
  // Given up at the first question; without a name; with the new entry's own; with one that exists.
  script.Type(kNames, "x").Click(kEdit).ShowsMessage(kAskRegister, kCancel);
  script.Type(kNames, "").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsMessage(kNameMissing, kOk).ShowsMessage(kNameMissing, kCancel);
  script.Pick(kNames, 2).Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsMessage(kNameMissing, kCancel);
  script.Type(kNames, "冬").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsMessage(kNameTaken, kOk).Shows(kNames, "冬").Escape();
  Call(script, 2);
  EXPECT_EQ(folder.Read(kList), List(2));
  EXPECT_EQ(folder.Read("Orbis3.plt"), std::nullopt);
}

TEST_F(PaletteTest, ANameThatTheListCannotHoldIsNotTaken) {
  const std::string longest(87, 'x');
  script.Type(kNames, longest + "x").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsMessage(kNameTaken, kOk).Shows(kNames, longest + "x");
  script.Type(kNames, longest).Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsRows(kNames, {"自然", "冬", longest});
  // The list ends a name at its first $.
  script.Type(kNames, "a$b").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsRows(kNames, {"自然", "冬", longest, "a"}).Click(1);
  EXPECT_EQ(Call(script, 2), "2|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), List(2) + longest + "$Orbis3.plt\r\na$b$Orbis4.plt\r\n");
}

TEST_F(PaletteTest, WhatOthersMadeOfTheListMeanwhileCounts) {
  script.Does(Silently([this] {
    folder.Write(kList, List(2) + "other$Orbis3.plt\r\n");
    folder.Write("Orbis3.plt", "other");
  }));
  script.Type(kNames, "other").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsMessage(kNameTaken, kOk);
  script.Type(kNames, "x").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsRows(kNames, {"自然", "冬", "other", "x"}).Pick(kNames, 1);
  // The file of the chosen palette is another one's by now.
  const std::string list = FromUtf8("自然$Orbis2.plt\r\n").bytes;
  script.Does(Silently([&] { folder.Write(kList, list); }));
  script.Click(Swatch(2)).ChoosesColour(0, 9u).Click(kEdit).ShowsMessage(kAskUpdate, kOk);
  script.Click(kDelete)
      .ShowsMessage(kAskDelete, kOk)
      .ShowsRows(kNames, {"自然", "冬", "other", "x"});
  script.Click(1).ShowsMessage(kAskOld, kCancel);
  EXPECT_EQ(Call(script, 2), "1|20|20|20|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), list);
  EXPECT_EQ(folder.Read("Orbis2.plt"), Text(kWinter));
  EXPECT_EQ(folder.Read("Orbis3.plt"), "other");
  EXPECT_NE(folder.Read("Orbis4.plt"), std::nullopt);
}

TEST_F(PaletteTest, TheNineteenthPaletteIsTheLast) {
  folder.Write(kList, List(18));
  script.Type(kNames, "nineteenth").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.Type(kNames, "one more").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsMessage(kListFull, kOk).Shows(kNames, "one more").Click(1);
  EXPECT_EQ(Call(script, 18), "18|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), List(18) + "nineteenth$Orbis19.plt\r\n");
}

TEST_F(PaletteTest, AnUpdateReplacesTheFileOnceItIsConfirmed) {
  script.Click(Swatch(2)).ChoosesColour(0x040302, 0u).Click(kEdit);
  script.ShowsMessage(kAskUpdate, kCancel).Click(kEdit).ShowsMessage(kAskUpdate, kOk);
  // What was written can be written again, and OK has nothing to ask.
  script.Click(kEdit).ShowsMessage(kAskUpdate, kCancel).Click(1);
  EXPECT_EQ(Call(script, 0), "0|10|10|10|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read("Orbis1.plt"), ";" + std::string("自然"_sj) + "  " +
                                           folder.Path().string() + "/Orbis1.plt  \r\n" +
                                           "   0  10  10  10    青（海域）  1:15\r\n"_sj +
                                           "   1  11  11  11         0m\r\n"
                                           "4000 253 254 255     4,000m\r\n");
}

TEST_F(PaletteTest, OkStaysUntilTheDiskTakesWhatIsPending) {
  const struct {
    int selected;
    std::uint32_t colour;
    const char *missing, *question, *confirmation, *written;
  } cases[] = {
      {0, 0x040302, "Orbis1.plt", kAskOld, kAskUpdate, "Orbis1.plt"},
      {2, 0, kList, kAskNew, kAskRegister, "Orbis3.plt"},
  };
  for (const auto& c : cases) {
    const std::string bytes = folder.Read(c.missing).value();
    ScriptFrontEnd visit;
    visit.OpensDialog(177).Click(Swatch(2)).ChoosesColour(c.colour, 9u).Type(kNames, "x");
    visit.Does(Silently([&] { std::filesystem::remove(folder.Path() / c.missing); }));
    visit.Click(1).ShowsMessage(c.question, kOk).ShowsMessage(c.confirmation, kOk);
    visit.Shows(kNames, "x").Does(Silently([&] {
      EXPECT_EQ(folder.Read(c.written), std::nullopt);
      folder.Write(c.missing, bytes);
    }));
    visit.Click(1).ShowsMessage(c.question, kOk).ShowsMessage(c.confirmation, kOk);
    EXPECT_NE(Call(visit, c.selected), "");
    const std::string text = folder.Read(c.written).value_or("");
    EXPECT_NE(text.find(" 100   9   0   0"), std::string::npos) << text;
  }
}

TEST_F(PaletteTest, AFileOutsideTheFolderIsNeitherUpdatedNorRemoved) {
  const CString inner = folder.Argument() + "inner/";
  std::filesystem::create_directories(folder.Path() / "inner/sub");
  folder.Write("victim.txt", Text(kWinter));
  for (const char* file : {"../victim.txt", "sub\\..\\..\\VICTIM.TXT"}) {
    folder.Write("inner/PLTTFILE.DAT", std::string("X$") + file + "\r\nY$\r\n");
    ScriptFrontEnd visit;
    visit.OpensDialog(177).Click(Swatch(2)).ChoosesColour(0, 9u).Click(kEdit);
    visit.ShowsMessage(kAskUpdate, kOk).Shows(kEdit, "更新");
    visit.Click(kDelete).ShowsMessage(kAskDelete, kOk).ShowsRows(kNames, {"Y", kNew});
    visit.Pick(kNames, 0).Click(kDelete).ShowsMessage(kAskDelete, kOk).Escape();
    Play(visit, [&] { OnMapPalleteSet(0, "", inner, 0, 0, 0); });
    EXPECT_EQ(folder.Read("victim.txt"), Text(kWinter)) << file;
    EXPECT_EQ(folder.Read("inner/PLTTFILE.DAT"), "") << file;
  }
}

TEST_F(PaletteTest, ADeletionRenumbersAndStaysAfterCancel) {
  script.Click(kDelete).ShowsMessage(kAskDelete, kCancel).ShowsSelection(kNames, 0);
  script.Click(kDelete).ShowsMessage(kAskDelete, kOk).ShowsRows(kNames, {"冬", kNew});
  script.ShowsSelection(kNames, -1).Shows(kNames, "").Shows(kNote, "配色の登録数=2");
  script.Does(ShowsSwatches(kSlots, Colours(kNatural))).Escape();
  EXPECT_EQ(Call(script, 0), "");
  EXPECT_EQ(folder.Read(kList), std::string("冬$Orbis1.plt\r\n"_sj));
  EXPECT_EQ(folder.Read("Orbis1.plt"), Text(kWinter));
  EXPECT_EQ(folder.Read("Orbis2.plt"), std::nullopt);
}

TEST_F(PaletteTest, AfterADeletionTheNumberNamesThePaletteBehind) {
  script.Click(kDelete).ShowsMessage(kAskDelete, kOk).Pick(kNames, 1).Click(kDelete);
  script.Pick(kNames, 0).Does(ShowsSwatches(kSlots, Colours(kWinter)));
  script.Click(kDelete).ShowsMessage(kAskDelete, kOk).ShowsRows(kNames, {kNew}).Click(1);
  EXPECT_EQ(Call(script, 0), "0|20|20|20|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), "");
}

TEST_F(PaletteTest, ADeletionDropsAChangeAndLeavesTheColoursToThePaletteBehind) {
  script.Click(Swatch(2)).ChoosesColour(0x040302, 9u);
  script.Click(kDelete).ShowsMessage(kAskDelete, kOk).Click(kEdit);
  script.ShowsMessage(kAskUpdate, kCancel).Click(1);
  EXPECT_EQ(Call(script, 0), "0|10|10|10|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read("Orbis1.plt"), Text(kWinter));
}

TEST_F(PaletteTest, ADeletionMakesRoomForTheNewEntry) {
  for (const int count : {19, 20, 21}) {
    folder.Write(kList, List(count));
    for (int i = 1; i <= count; ++i) folder.Write("Orbis" + std::to_string(i) + ".plt", "");
    std::vector<std::string> rows;
    for (int i = 0; i < std::min(count, 21); ++i) {
      if (i != 1) rows.push_back(NameOf(i));
    }
    if (count == 19) rows.push_back(kNew);
    ScriptFrontEnd visit;
    visit.OpensDialog(177).Click(kDelete).ShowsMessage(kAskDelete, kOk).ShowsRows(kNames, rows);
    visit.Escape();
    Call(visit, 1);
  }
}

TEST_F(PaletteTest, WhatTheDiskRefusesHasNoEffect) {
  const struct {
    int selected, button;
    const char* question;
    Steps prepare;
  } cases[] = {
      {2, kEdit, kAskRegister, [](ScriptFrontEnd& visit) { visit.Type(kNames, "x"); }},
      {0, kEdit, kAskUpdate,
       [this](ScriptFrontEnd& visit) { visit.Click(Swatch(2)).ChoosesColour(0x040302, 9u); }},
      {0, kDelete, kAskDelete, [](ScriptFrontEnd&) {}},
      {1, kDelete, kAskDelete, [](ScriptFrontEnd&) {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.question);
    PlayOnAFailingDisk(
        {folder, kList, [&](ScriptFrontEnd& visit) { c.prepare(visit.OpensDialog(177)); },
         [&](ScriptFrontEnd& visit) { visit.Click(c.button).ShowsMessage(c.question, kOk); },
         [&](ScriptFrontEnd& visit) { Call(visit.Escape(), c.selected); }});
  }
}

TEST_F(PaletteTest, WithNothingPendingTheEditorOpensTheFileOfTheChosenRow) {
  const std::string program = folder.WriteProgram("editor", "echo ' 100   7   7   7' > \"$1\"");
  // A lake colour lies in no file, so that it leaves nothing pending.
  script.Click(Swatch(11)).ChoosesColour(kLake, 9u).Shows(kEdit, "更新").Pick(kNames, 1);
  script.Click(kEdit).Click(Swatch(11)).ChoosesColour(9, kLake);
  script.Does(ShowsSwatches(kSlots, Colours(kWinter))).Pick(kNames, 1);
  script.Does(ShowsSwatches(kSlots, Colours({{2, 0x070707}}))).Click(1);
  EXPECT_EQ(Call(script, 0, program.c_str()), "1|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read("Orbis2.plt"), " 100   7   7   7\n");
}

}  // namespace
}  // namespace orreryui
