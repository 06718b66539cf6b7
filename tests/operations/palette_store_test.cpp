// The palette editor on its files: register, update, delete, edit.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/japanese_literal.h"
#include "tests/files/faulty_file_system.h"
#include "tests/operations/palette_fixture.h"

namespace orreryui {
namespace {

using enum MessageBoxAnswer;

constexpr char kAskRegister[] = "新規に配色を登録します！";
constexpr char kNameMissing[] = "配色の名称を入力してください！";
constexpr char kNameTaken[] = "配色の名称を新規に入力してください！";
constexpr char kListFull[] = "配色は許容限度(20)まで登録されています！";
constexpr char kAskUpdate[] = "現在選択中の配色を更新します！";
constexpr char kAskDelete[] = "現在選択中の配色を削除します！";

TEST_F(PaletteTest, RegistersThePaletteOfTheNewEntry) {
  script.Click(Swatch(2)).ChoosesColour(0, 0x030201).Type(kNames, "ー表|[ＡＢ").Click(kEdit);
  script.ShowsMessage(kAskRegister, kOk);
  script.ShowsRows(kNames, {"自然", "冬", "ー表|[ＡＢ"}).ShowsSelection(kNames, -1);
  script.Shows(kNames, "").Shows(kEdit, kNew).Click(1);
  EXPECT_EQ(Call(2), "2|0|0|0|1|2|3|4|5|6|");
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
  Call(2);
  EXPECT_EQ(folder.Read(kList), List(2));
  EXPECT_EQ(folder.Read("Orbis3.plt"), std::nullopt);
}

TEST_F(PaletteTest, OkRegistersWhatIsPending) {
  script.Click(Swatch(2)).ChoosesColour(0, 1u).Type(kNames, "x").Click(1);
  script.ShowsMessage("配色を登録しますか！", kOk).ShowsMessage(kAskRegister, kOk);
  EXPECT_EQ(Call(2), "2|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), List(2) + "x$Orbis3.plt\r\n");
}

TEST_F(PaletteTest, TheNineteenthPaletteIsTheLast) {
  folder.Write(kList, List(18));
  script.Type(kNames, "nineteenth").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.Type(kNames, "one more").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsMessage(kListFull, kOk).Shows(kNames, "one more").Click(1);
  EXPECT_EQ(Call(18), "18|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), List(18) + "nineteenth$Orbis19.plt\r\n");
}

TEST_F(PaletteTest, TwoRegistrationsGoToFilesOfTheirPlaces) {
  script.Type(kNames, "x").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.Type(kNames, "y").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsRows(kNames, {"自然", "冬", "x", "y"}).Escape();
  Call(2);
  EXPECT_EQ(folder.Read(kList), List(2) + "x$Orbis3.plt\r\ny$Orbis4.plt\r\n");
}

TEST_F(PaletteTest, WithoutAListNothingIsRegistered) {
  std::filesystem::remove_all(folder.Path() / kList);
  script.ShowsRows(kNames, {kNew}).Type(kNames, "x").Click(kEdit).ShowsMessage(kAskRegister, kOk);
  script.ShowsRows(kNames, {kNew}).Shows(kNames, "x").Click(1);
  EXPECT_EQ(Call(0), "0|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), std::nullopt);
  EXPECT_EQ(folder.Read("Orbis1.plt"), Text(kNatural));
  EXPECT_EQ(folder.Read("Orbis3.plt"), std::nullopt);
}

TEST_F(PaletteTest, AnUpdateReplacesTheFileOnceItIsConfirmed) {
  script.Click(Swatch(2)).ChoosesColour(0x040302, 0u).Click(kEdit);
  script.ShowsMessage(kAskUpdate, kCancel).Click(kEdit).ShowsMessage(kAskUpdate, kOk).Click(1);
  EXPECT_EQ(Call(0), "0|10|10|10|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read("Orbis1.plt"), ";" + std::string("自然"_sj) + "  " +
                                           folder.Path().string() + "/Orbis1.plt  \r\n" +
                                           "   0  10  10  10    青（海域）  1:15\r\n"_sj +
                                           "   1  11  11  11         0m\r\n"
                                           "4000 253 254 255     4,000m\r\n");
}

TEST_F(PaletteTest, AnUpdateThatCannotBeWrittenStaysPending) {
  std::filesystem::remove(folder.Path() / "Orbis1.plt");
  script.Click(Swatch(2)).ChoosesColour(0, 1u).Click(kEdit).ShowsMessage(kAskUpdate, kOk);
  script.Click(1).ShowsMessage("配色を更新しますか！", kCancel);
  EXPECT_EQ(Call(0), "0|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read("Orbis1.plt"), std::nullopt);
}

TEST_F(PaletteTest, ADeletionRenumbersAndStaysAfterCancel) {
  script.Click(kDelete).ShowsMessage(kAskDelete, kCancel).ShowsSelection(kNames, 0);
  script.Click(kDelete).ShowsMessage(kAskDelete, kOk).ShowsRows(kNames, {"冬", kNew});
  script.ShowsSelection(kNames, -1).Shows(kNames, "").Shows(kNote, "配色の登録数=2");
  script.Does(ShowsSwatches(kSlots, Colours(kNatural))).Escape();
  EXPECT_EQ(Call(0), "");
  EXPECT_EQ(folder.Read(kList), std::string("冬$Orbis1.plt\r\n"_sj));
  EXPECT_EQ(folder.Read("Orbis1.plt"), Text(kWinter));
  EXPECT_EQ(folder.Read("Orbis2.plt"), std::nullopt);
}

TEST_F(PaletteTest, AfterADeletionTheNumberNamesThePaletteBehind) {
  script.Click(kDelete).ShowsMessage(kAskDelete, kOk).Pick(kNames, 1).Click(kDelete);
  script.Pick(kNames, 0).Does(ShowsSwatches(kSlots, Colours(kWinter)));
  script.Click(kDelete).ShowsMessage(kAskDelete, kOk).ShowsRows(kNames, {kNew}).Click(1);
  EXPECT_EQ(Call(0), "0|20|20|20|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read(kList), "");
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
    ScopedFrontEnd scope(&visit);
    OnMapPalleteSet(1, "", folder.Argument(), 0, 0, 0);
    EXPECT_EQ(visit.Failures(), "") << count;
  }
}

TEST_F(PaletteTest, WhatTheDiskRefusesHasNoEffect) {
  int refusals = 0;
  bool failed = true;
  for (int failing = 1; failed; ++failing) {
    folder.Write(kList, List(2));
    std::filesystem::remove(folder.Path() / "Orbis3.plt");
    FaultyFileSystem files(failing);
    std::optional<ScopedFileSystem> disk;
    std::string text;
    ScriptFrontEnd visit;
    visit.OpensDialog(177).Type(kNames, "x").Does([&](DialogSession&) {
      disk.emplace(files);
      return std::string();
    });
    visit.Click(kEdit).ShowsMessage(kAskRegister, kOk).Does([&](DialogSession& session) {
      disk.reset();
      for (int i = 0; i < session.ControlCount(); ++i) {
        if (session.Control(i).id == kNames) text = session.Control(i).text;
      }
      return std::string();
    });
    visit.Escape();
    ScopedFrontEnd scope(&visit);
    OnMapPalleteSet(2, "", folder.Argument(), 0, 0, 0);
    EXPECT_EQ(visit.Failures(), "");
    const bool registered = folder.Read("Orbis3.plt").has_value();
    EXPECT_EQ(folder.Read(kList), registered ? List(2) + "x$Orbis3.plt\r\n" : List(2)) << failing;
    EXPECT_EQ(text, registered ? "" : "x") << failing;
    refusals += registered ? 0 : 1;
    failed = files.calls() >= failing;
  }
  EXPECT_GT(refusals, 5);
}

TEST_F(PaletteTest, WithNothingPendingTheEditorOpensTheFile) {
  const std::string program = (folder.Path() / "editor").string();
  folder.Write("editor", "#!/bin/sh\necho ' 100   7   7   7' > \"$1\"\n");
  chmod(program.c_str(), 0755);
  script.Click(kEdit).Does(ShowsSwatches(kSlots, Colours(kNatural))).Pick(kNames, 0);
  script.Does(ShowsSwatches(kSlots, Colours({{2, 0x070707}}))).Click(1);
  EXPECT_EQ(Call(0, program.c_str()), "0|0|0|0|1|2|3|4|5|6|");
  EXPECT_EQ(folder.Read("Orbis1.plt"), " 100   7   7   7\n");
}

}  // namespace
}  // namespace orreryui
