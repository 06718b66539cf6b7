#include "appearance/palette_list.h"

#include <gtest/gtest.h>

#include <map>

#include "platform/strings/japanese_literal.h"
#include "tests/files/faulty_file_system.h"
#include "tests/operations/test_folder.h"

namespace orreryui {
namespace {

constexpr char kList[] = "PLTTFILE.DAT";

using Files = std::map<std::string, std::string>;

class PaletteListTest : public testing::Test {
 protected:
  // Replaces all files of the folder.
  void Lay(const Files& files) const {
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
      std::filesystem::remove(entry.path());
    }
    for (const auto& [name, bytes] : files) folder.Write(name, bytes);
  }
  Files Found() const {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
      const std::string name = entry.path().filename().string();
      files[name] = *folder.Read(name);
    }
    return files;
  }
  // Lays out a list and palette files whose content is the name that they begin with.
  static Files Layout(const std::string& list, const std::vector<std::string>& palettes) {
    Files files = {{kList, list}};
    for (const std::string& name : palettes) files[name] = name;
    return files;
  }
  bool Remove(std::size_t number) const {
    PaletteList list = ReadPaletteList(folder.Argument());
    return RemovePaletteEntry(folder.Argument(), list, number);
  }
  std::string Names() const {
    std::string text;
    for (const PaletteEntry& entry : ReadPaletteList(folder.Argument()).entries) {
      text.append("<").append(entry.name).append("|").append(entry.file).append(">");
    }
    return text;
  }

  TestFolder folder;
};

TEST_F(PaletteListTest, SplitsLinesAtTheFirstDollarThatIsACharacter) {
  const std::string full(98, 'n');
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"\r\na$b\r\n", ""},
      {";a$b\nc$d$e", "<;a|b><c|d$e>"},
      {"no dollar\r\n$f\r\nn$\r\n\r\nx$y\r\n", "<|no dollar><|f><n|>"},
      {std::string("ー構　$b\r\n表|[＠$ｱ\r\n"_sj), std::string("<ー構　|b><表|[＠|ｱ>"_sj)},
      {full + "\r\n" + full + "$f", "<|" + full + "><|" + full + "><|f>"},
  };
  for (const auto& [list, expected] : cases) {
    folder.Write(kList, list);
    EXPECT_EQ(Names(), expected) << list;
  }
}

TEST_F(PaletteListTest, KeepsWhatStandsBehindItsEntries) {
  std::string lines;
  for (int i = 0; i < 500; ++i) lines += "n$f\n";
  const std::tuple<std::string, std::size_t, std::string> cases[] = {
      {"a$b\r\n", 1u, ""},
      {"a$b\n\n", 1u, "\n"},
      {"a$b\n\r\nc$d\n", 1u, "\r\nc$d\n"},
      {lines, 20u, lines.substr(20 * 4)},
      {lines.substr(0, 20 * 4), 20u, ""},
  };
  for (const auto& [list, count, rest] : cases) {
    folder.Write(kList, list);
    const PaletteList read = ReadPaletteList(folder.Argument());
    EXPECT_EQ(read.entries.size(), count) << list;
    EXPECT_EQ(read.rest, rest) << list;
    EXPECT_TRUE(read.complete);
  }
}

TEST_F(PaletteListTest, FindsOneLineWhateverStandsInFront) {
  const std::tuple<const char*, int, const char*> cases[] = {
      {"a$1\r\n\r\nc$3\r\n", 2, "c$3"}, {"a$1\r\n\r\nc$3\r\n", 1, ""}, {"a$1\r\nb$2\r\n", 9, ""},
      {"a$1\r\nb$2", 9, "b$2"},         {"a$1\r\n", -1, ""},           {"", 0, ""},
      {"a$1\r\nb$2", -1, "b$2"},
  };
  for (const auto& [list, number, line] : cases) {
    folder.Write(kList, list);
    EXPECT_EQ(ReadPaletteLine(folder.Argument(), number), line) << list << number;
  }
}

TEST_F(PaletteListTest, NamesNewFilesByCountAndTakesNoNameInUse) {
  const std::tuple<std::string, std::vector<std::string>, const char*> cases[] = {
      {"", {}, "Orbis1.plt"},
      {"a$winter.plt\nb$ORBIS7.plt\nc$myorbis", {}, "Orbis3.plt"},
      {"a$winter.plt\nb$Orbis2.plt\n", {"ORBIS2.PLT", "orbis3.plt"}, "Orbis4.plt"},
  };
  for (const auto& [list, files, expected] : cases) {
    Lay(Layout(list, files));
    const CString folder_name = folder.Argument();
    EXPECT_EQ(NewPaletteFile(folder_name, ReadPaletteList(folder_name)), expected) << list;
  }
}

TEST_F(PaletteListTest, AddsBehindTheEntriesAndNeedsTheFile) {
  const auto add = [this] {
    return AddPaletteEntry(folder.Argument(), ReadPaletteList(folder.Argument()), {"n", "f"});
  };
  EXPECT_FALSE(add());
  EXPECT_TRUE(Found().empty());
  const std::pair<std::string, std::string> cases[] = {
      {"", "n$f\r\n"},
      {"a$b\nc$d", "a$b\nc$d\r\nn$f\r\n"},
      {"a$b\n\nc$d\n", "a$b\r\nn$f\r\n\nc$d\n"},
  };
  for (const auto& [list, expected] : cases) {
    folder.Write(kList, list);
    EXPECT_TRUE(add());
    EXPECT_EQ(folder.Read(kList), expected);
  }
}

struct RemoveCase {
  const char* what;
  Files before;
  std::size_t number;
  Files after;
};

TEST_F(PaletteListTest, RemovesOneFileAndRenumbersThoseBehindIt) {
  std::string lines;
  for (int i = 5; i <= 30; ++i) lines += "n$f" + std::to_string(i) + "\r\n";
  const RemoveCase cases[] = {
      {"the second of four",
       Layout("a$Orbis1.plt\nb$Orbis2.plt\nc$ORBIS3.PLT\nd$Orbis4.plt\n",
              {"Orbis1.plt", "Orbis2.plt", "Orbis3.plt", "orbis4.plt"}),
       1,
       {{kList, "a$Orbis1.plt\r\nc$Orbis2.plt\r\nd$Orbis3.plt\r\n"},
        {"Orbis1.plt", "Orbis1.plt"},
        {"Orbis2.plt", "Orbis3.plt"},
        {"Orbis3.plt", "orbis4.plt"}}},
      {"a file of the user's own name in front and behind",
       Layout("a$own\nb$Orbis2.plt\nc$other\nd$Orbis4.plt\n",
              {"own", "Orbis2.plt", "other", "Orbis4.plt"}),
       0,
       {{kList, "b$Orbis1.plt\r\nc$other\r\nd$Orbis3.plt\r\n"},
        {"Orbis1.plt", "Orbis2.plt"},
        {"other", "other"},
        {"Orbis3.plt", "Orbis4.plt"}}},
      {"two entries with one file",
       Layout("a$Orbis1.plt\nb$orbis1.plt\nc$Orbis3.plt\n", {"Orbis1.plt", "Orbis3.plt"}),
       0,
       {{kList, "b$orbis1.plt\r\nc$Orbis2.plt\r\n"},
        {"Orbis1.plt", "Orbis1.plt"},
        {"Orbis2.plt", "Orbis3.plt"}}},
      {"a name that a file outside the list bears",
       Layout("a$own\nb$Orbis2.plt\nc$Orbis3.plt\n",
              {"own", "Orbis1.plt", "Orbis2.plt", "Orbis3.plt"}),
       0,
       {{kList, "b$Orbis2.plt\r\nc$Orbis3.plt\r\n"},
        {"Orbis1.plt", "Orbis1.plt"},
        {"Orbis2.plt", "Orbis2.plt"},
        {"Orbis3.plt", "Orbis3.plt"}}},
      {"a file that a line behind the empty line names",
       Layout("a$Orbis1.plt\n\nz$orbis1.plt\n", {"Orbis1.plt"}),
       0,
       {{kList, "\nz$orbis1.plt\n"}, {"Orbis1.plt", "Orbis1.plt"}}},
      {"lines behind the twentieth",
       Layout("n$f1\nn$f2\nn$f3\nn$f4\n" + lines, {"f2"}),
       1,
       {{kList, "n$f1\r\nn$f3\r\nn$f4\r\n" + lines}}},
  };
  for (const RemoveCase& expected : cases) {
    Lay(expected.before);
    EXPECT_TRUE(Remove(expected.number)) << expected.what;
    EXPECT_EQ(Found(), expected.after) << expected.what;
  }
}

TEST_F(PaletteListTest, AMissingFileStopsARemovalBeforeAnythingIsLost) {
  const Files cases[] = {
      Layout("a$Orbis1.plt\nb$Orbis2.plt\n", {"Orbis2.plt"}),
      Layout("a$\nb$Orbis2.plt\n", {"Orbis2.plt"}),
      Layout("a$Orbis1.plt\nb$Orbis2.plt\nc$Orbis3.plt\n", {"Orbis1.plt", "Orbis2.plt"}),
  };
  for (const Files& files : cases) {
    Lay(files);
    EXPECT_FALSE(Remove(0));
    EXPECT_EQ(Found(), files);
  }
}

TEST_F(PaletteListTest, ARemovalIsTakenBackIfAnyStepFails) {
  const Files before = Layout("a$Orbis1.plt\nb$Orbis2.plt\nc$Orbis3.plt\n\nrest",
                              {"Orbis1.plt", "Orbis2.plt", "Orbis3.plt"});
  const Files after = {{kList, "b$Orbis1.plt\r\nc$Orbis2.plt\r\n\nrest"},
                       {"Orbis1.plt", "Orbis2.plt"},
                       {"Orbis2.plt", "Orbis3.plt"}};
  int refusals = 0;
  bool failed = true;
  for (int failing = 1; failed; ++failing) {
    Lay(before);
    PaletteList list = ReadPaletteList(folder.Argument());
    FaultyFileSystem files(failing);
    bool removed = false;
    {
      ScopedFileSystem scope(files);
      removed = RemovePaletteEntry(folder.Argument(), list, 0);
    }
    EXPECT_EQ(Found(), removed ? after : before) << "call " << failing;
    EXPECT_EQ(list.entries.size(), removed ? 2u : 3u) << "call " << failing;
    EXPECT_EQ(list.entries[1].file, "Orbis2.plt") << "call " << failing;
    refusals += removed ? 0 : 1;
    failed = files.calls() >= failing;
  }
  EXPECT_GT(refusals, 10);
}

TEST_F(PaletteListTest, AListThatReadsInPartIsNotRewritten) {
  Lay(Layout("a$Orbis1.plt\n\nb$Orbis2.plt\n", {"Orbis1.plt"}));
  const Files before = Found();
  int incomplete = 0;
  bool failed = true;
  for (int failing = 1; failed; ++failing) {
    FaultyFileSystem files(failing);
    PaletteList list;
    {
      ScopedFileSystem scope(files);
      list = ReadPaletteList(folder.Argument());
    }
    failed = files.calls() >= failing;
    EXPECT_EQ(list.complete, !failed) << "call " << failing;
    if (list.complete) continue;
    ++incomplete;
    EXPECT_FALSE(AddPaletteEntry(folder.Argument(), list, {"n", "f"}));
    if (!list.entries.empty()) {
      EXPECT_FALSE(RemovePaletteEntry(folder.Argument(), list, 0));
    }
  }
  EXPECT_GT(incomplete, 2);
  EXPECT_EQ(Found(), before);
}

}  // namespace
}  // namespace orreryui
