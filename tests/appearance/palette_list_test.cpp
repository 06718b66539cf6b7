#include "appearance/palette_list.h"

#include <gtest/gtest.h>

#include "platform/strings/japanese_literal.h"
#include "tests/support/each_fault.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

constexpr char kList[] = "PLTTFILE.DAT";

class PaletteListTest : public testing::Test {
 protected:
  // A list and palette files whose content is the name that they begin with.
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

TEST_F(PaletteListTest, SplitsLinesAtTheFirstDollarThatIsACharacterAndKeepsTheRest) {
  const std::string full(98, 'n');
  std::string lines, entries;
  for (int i = 0; i < 20; ++i) lines += "n$f\n", entries += "<n|f>";
  const struct {
    std::string list, entries, rest;
  } cases[] = {
      {"", "", ""},
      {"\r\na$b\r\n", "", "\r\na$b\r\n"},
      {";a$b\nc$d$e", "<;a|b><c|d$e>", ""},
      {"no dollar\r\n$f\r\nn$\r\n\r\nx$y\r\n", "<|no dollar><|f><n|>", "\r\nx$y\r\n"},
      {"ー構　$b\r\n表|[＠$ｱ\r\n"_sj, "<ー構　|b><表|[＠|ｱ>"_sj, ""},
      {full + "\r\n" + full + "$f", "<|" + full + "><|" + full + "><|f>", ""},
      {lines + lines, entries, lines},
      {lines, entries, ""},
  };
  for (const auto& c : cases) {
    folder.Write(kList, c.list);
    EXPECT_EQ(Names(), c.entries) << c.list;
    EXPECT_EQ(ReadPaletteList(folder.Argument()).rest, c.rest) << c.list;
  }
}

TEST_F(PaletteListTest, NamesNewFilesByCountAndTakesNoNameInUse) {
  const std::tuple<std::string, std::vector<std::string>, const char*> cases[] = {
      {"", {}, "Orbis1.plt"},
      {"a$winter.plt\nb$ORBIS7.plt\nc$myorbis", {}, "Orbis3.plt"},
      {"a$winter.plt\nb$Orbis2.plt\n", {"ORBIS2.PLT", "orbis3.plt"}, "Orbis4.plt"},
  };
  for (const auto& [list, files, expected] : cases) {
    folder.Lay(Layout(list, files));
    const CString folder_name = folder.Argument();
    EXPECT_EQ(NewPaletteFile(folder_name, ReadPaletteList(folder_name)), expected) << list;
  }
}

TEST_F(PaletteListTest, AddsBehindTheEntriesAndNeedsTheList) {
  const auto add = [this] { return AddPaletteEntry(folder.Argument(), {"n", "f"}, "rows"); };
  EXPECT_FALSE(add());
  EXPECT_TRUE(folder.Content().empty());
  const std::pair<std::string, std::string> cases[] = {
      {"", "n$f\r\n"},
      {"a$b\nc$d", "a$b\nc$d\r\nn$f\r\n"},
      {"a$b\n\nc$d\n", "a$b\nn$f\r\n\nc$d\n"},
  };
  for (const auto& [list, expected] : cases) {
    folder.Lay({{kList, list}});
    EXPECT_TRUE(add());
    EXPECT_EQ(folder.Content(), (Files{{kList, expected}, {"f", "rows"}}));
    EXPECT_FALSE(add()) << "the file is there";
    EXPECT_EQ(folder.Content(), (Files{{kList, expected}, {"f", "rows"}}));
  }
}

TEST_F(PaletteListTest, RemovesOneFileAndRenumbersThoseBehindIt) {
  std::string lines;
  for (int i = 5; i <= 30; ++i) lines += "n$f" + std::to_string(i) + "\r\n";
  const auto removes = [this](const std::string& list, const std::vector<std::string>& files,
                              std::size_t number, const std::string& list_after, Files after) {
    folder.Lay(Layout(list, files));
    EXPECT_TRUE(Remove(number)) << list;
    after[kList] = list_after;
    EXPECT_EQ(folder.Content(), after) << list;
  };
  // The second of four.
  removes(
      "a$Orbis1.plt\nb$Orbis2.plt\nc$ORBIS3.PLT\nd$Orbis4.plt\n",
      {"Orbis1.plt", "Orbis2.plt", "Orbis3.plt", "orbis4.plt"}, 1,
      "a$Orbis1.plt\r\nc$Orbis2.plt\r\nd$Orbis3.plt\r\n",
      {{"Orbis1.plt", "Orbis1.plt"}, {"Orbis2.plt", "Orbis3.plt"}, {"Orbis3.plt", "orbis4.plt"}});
  // Files of the user's own names, and one that is missing.
  removes("a$own\nb$Orbis2.plt\nc$other\nd$Orbis4.plt\ne$Orbis5.plt\n",
          {"own", "Orbis2.plt", "other", "Orbis5.plt"}, 0,
          "b$Orbis1.plt\r\nc$other\r\nd$Orbis3.plt\r\ne$Orbis4.plt\r\n",
          {{"Orbis1.plt", "Orbis2.plt"}, {"other", "other"}, {"Orbis4.plt", "Orbis5.plt"}});
  // Two entries with one file.
  removes("a$Orbis1.plt\nb$orbis1.plt\nc$Orbis3.plt\n", {"Orbis1.plt", "Orbis3.plt"}, 0,
          "b$orbis1.plt\r\nc$Orbis2.plt\r\n",
          {{"Orbis1.plt", "Orbis1.plt"}, {"Orbis2.plt", "Orbis3.plt"}});
  // A name that a file outside the list bears.
  removes("a$own\nb$Orbis2.plt\n", {"own", "Orbis1.plt", "Orbis2.plt"}, 0, "b$Orbis2.plt\r\n",
          {{"Orbis1.plt", "Orbis1.plt"}, {"Orbis2.plt", "Orbis2.plt"}});
  // A file that a line behind the empty line names.
  removes("a$Orbis1.plt\n\nz$orbis1.plt\n", {"Orbis1.plt"}, 0, "\nz$orbis1.plt\n",
          {{"Orbis1.plt", "Orbis1.plt"}});
  // A missing file of a name that another entry keeps.
  removes("a$\nb$Orbis1.plt\nc$Orbis3.plt\n", {"Orbis3.plt"}, 0, "b$Orbis1.plt\r\nc$Orbis2.plt\r\n",
          {{"Orbis2.plt", "Orbis3.plt"}});
  // Lines behind the twentieth.
  removes("n$f1\nn$f2\nn$f3\nn$f4\n" + lines, {"f2"}, 1, "n$f1\r\nn$f3\r\nn$f4\r\n" + lines, {});
}

TEST_F(PaletteListTest, ARemovalStartsFromTheListAsItIsByThen) {
  const Files shown = Layout("a$Orbis1.plt\nb$Orbis2.plt\na$Orbis1.plt\n", {"Orbis1.plt"});
  const std::tuple<std::string, std::size_t, std::string> cases[] = {
      {"a$Orbis1.plt\nb$Orbis2.plt\nc$d\n", 1u, "a$Orbis1.plt\r\nc$d\r\n"},
      {"a$Orbis1.plt\nx$y\na$Orbis1.plt\n", 2u, "a$Orbis1.plt\r\nx$y\r\n"},
      {"a$Orbis1.plt\n", 2u, ""},
      {"b$Orbis1.plt\n", 1u, ""},
      {"", 0u, ""},
  };
  for (const auto& [list, number, after] : cases) {
    folder.Lay(shown);
    PaletteList read = ReadPaletteList(folder.Argument());
    folder.Write(kList, list);
    EXPECT_EQ(RemovePaletteEntry(folder.Argument(), read, number), !after.empty()) << list;
    EXPECT_EQ(folder.Read(kList), after.empty() ? list : after);
    EXPECT_EQ(folder.Read("Orbis1.plt"), "Orbis1.plt");
  }
}

// Whoever looks at one line brings a removal that was killed to its end.
TEST_F(PaletteListTest, AChangeThatIsKilledIsMadeOrIsNot) {
  const Files before = Layout("a$Orbis1.plt\nb$Orbis2.plt\n", {"Orbis1.plt", "Orbis2.plt"});
  const Files after = {{kList, "b$Orbis1.plt\r\n"}, {"Orbis1.plt", "Orbis2.plt"}};
  ForEachKill([&] { folder.Lay(before); }, [this] { Remove(0); },
              [&] {
                ReadPaletteLine(folder.Argument(), 0);
                EXPECT_TRUE(folder.Content() == after || folder.Content() == before);
              });
  EXPECT_EQ(folder.Content(), after) << "once nothing was killed";
}

}  // namespace
}  // namespace orreryui
