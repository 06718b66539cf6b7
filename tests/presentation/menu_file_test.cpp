#include "presentation/menu_file.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "platform/strings/code_page_932.h"
#include "tests/support/each_fault.h"

namespace orreryui {
namespace {

constexpr char kMenuFile[] = "SOURCE/MENUFILE.DAT";
constexpr char kGuidemap[] = "Guidemap/Guidemap.DAT";

std::string Repeat(std::size_t times, const std::string& text) {
  std::string all;
  for (std::size_t i = 0; i < times; ++i) all += text;
  return all;
}

// Item lines of free slots.
std::string Items(int first, int last) {
  CString lines, line;
  for (int slot = first; slot <= last; ++slot) line.Format("%02d=\r\n", slot), lines += line;
  return std::string(lines);
}

// Texts are in UTF-8.
class MenuFileTest : public testing::Test {
 protected:
  MenuFileTest() {
    create_directory_symlink(source.Path(), folder.Path() / "SOURCE");
    create_directory_symlink(guidemap.Path(), folder.Path() / "Guidemap");
  }

  void Lay(const char* name, const std::string& text) { folder.Write(name, FromUtf8(text).bytes); }
  std::string Found(const char* name) const { return ToUtf8(folder.Read(name).value_or("none")); }
  bool Load(int section) { return ReadMenuSection(folder.Argument(), section, titles, files); }
  bool Save(int section) { return WriteMenuSection(folder.Argument(), section, titles, files); }
  bool LoadMap() { return ReadGuidemap(folder.Argument(), titles, files); }
  bool SaveMap() { return WriteGuidemap(folder.Argument(), titles, files); }

  // The slots that aren't free, as number:title|file and a bar behind each.
  std::string Slots() const {
    std::string slots;
    for (std::size_t slot = 0; slot < kMenuSlots; ++slot) {
      const std::string text = ToUtf8(titles[slot] + '|' + files[slot] + '|');
      if (text != "||") slots += std::to_string(slot) + ":" + text;
    }
    return slots;
  }

  TestFolder folder, source, guidemap;
  MenuTexts titles, files;
};

TEST_F(MenuFileTest, EntriesAreWrittenAndReadBack) {
  const struct {
    std::string title, file;
    std::string item, read;     // in a section
    std::string line, on_read;  // in the picture map
  } cases[] = {
      {"Kyoto", "a.txt", "Kyoto@a.txt", "Kyoto|a.txt|", "Kyoto a.txt", "Kyoto|a.txt|"},
      {"------", "", "------", "----------||", "------ ", "------||"},
      {"A--B", "", "A--B@", "A--B||", "A--B ", "A--B||"},
      {"--x", "a.txt", "--x", "----------||", "--x a.txt", "--x|a.txt|"},
      {"a@b", "c=", "a@b@c=", "a|b@c=|", "a@b c=", "a@b|c=|"},
      {"a b", "c d", "a b@c d", "a b|c d|", "a b c d", "a|b c d|"},
      {"ァ　", "ー", "ァ　@ー", "ァ　|ー|", "ァ　 ー", "ァ　|ー|"},
      {"－－", "", "－－@", "－－||", "－－ ", "－－||"},
      {"999", "f", "999@f", "999|f|", "999 f", "999|f|"},
  };
  for (const auto& c : cases) {
    Lay(kMenuFile, "[M\r\n07=x\r\n");
    Lay(kGuidemap, "");
    titles = files = {};
    titles[7] = FromUtf8(c.title).bytes.c_str();
    files[7] = FromUtf8(c.file).bytes.c_str();
    EXPECT_TRUE(Save(0) && SaveMap());
    EXPECT_EQ(Found(kMenuFile) + Found(kGuidemap), "[M\r\n07=" + c.item + "\r\n" + c.line + "\r\n");
    EXPECT_TRUE(Load(0));
    EXPECT_EQ(Slots(), "7:" + c.read);
    EXPECT_TRUE(LoadMap());
    EXPECT_EQ(Slots(), "0:" + c.on_read);
  }
}

TEST_F(MenuFileTest, AnEntryThatLooksLikeAHeadStaysInItsSectionWhileItIsKnown) {
  Lay(kMenuFile, "[M\n" + Items(0, 34));
  titles[1] = "x[M";
  EXPECT_TRUE(Save(0));
  titles[2] = "y";
  EXPECT_TRUE(Save(0));
  EXPECT_EQ(Found(kMenuFile), "[M\n00=\r\n01=x[M@\r\n02=y@\r\n" + Items(3, 34));
}

// What the lines of a file mean to a section, and what becomes of them when slot 2 gets an entry;
// what is refused leaves the file as it was.
TEST_F(MenuFileTest, AllButTheSectionStaysAsItWas) {
  const std::string odd("; [M\n\n\0x\r\n07=x\r\r\nno item\n", 25);
  const std::string head = odd + "[M\n00=o\n[M\n" + Items(0, 34), tail = "a [M b\n" + odd + "00=x";
  const std::string bar(195, 'b');  // with its key and @ a line of 199 bytes
  const std::string much = Repeat(1 << 20, "x") + "\n" + Repeat(5000, "x\n");
  const std::string shifted = "[M\n00=x[M@y\n";
  const struct {
    int section;
    std::string before, read, after;
  } cases[] = {
      {2, head + "[M\n" + Items(0, 34) + tail, "",
       head + "[M\n" + Items(0, 1) + "02=N@n\r\n" + Items(3, 34) + tail},
      // Comments, empty lines and lines without = inside.
      {0, "[M\n;c\n00=a@b\n\nno\n02=\n;9=\n999\n01=x", "0:a|b|1:----------||",
       "[M\n;c\n00=a@b\r\n\nno\n02=N@n\r\n;9=\n999\n01=----------\r\n"},
      // Fewer lines than slots.
      {0, "[M\n00=a@b\n;c\n[M\n02=z@z\n", "0:a|b|", "[M\n00=a@b\r\n02=N@n\r\n;c\n[M\n02=z@z\n"},
      {0, "[M\n[M\n", "", "[M\n02=N@n\r\n[M\n"},
      {1, "[M\n[M", "", "[M\n[M\r\n02=N@n\r\n"},
      // No order; two lines of a slot; keys without a slot.
      {0, "[M\n05=e@f\n02=c@d\n", "2:c|d|5:e|f|", "[M\n05=e@f\r\n02=N@n\r\n"},
      {0, "[M\n01=a@b\n01=c@d\n02=\n", "1:a|b|", "[M\n01=a@b\r\n01=c@d\n02=N@n\r\n"},
      {0, "[M\n35=a@b\n-1=c@d\n2=e@f\n", "2:e|f|", "[M\n35=\r\n-1=\r\n2=N@n\r\n"},
      // A head within an item; a trail byte that is a bracket.
      {1, shifted + "02=c@d\n[M\n", "2:c|d|", shifted + "02=N@n\r\n[M\n"},
      {0, "[M\n00=ーM@b\n02=\n", "0:ーM|b|", "[M\n00=ーM@b\r\n02=N@n\r\n"},
      // More lines than slots, and so many that there is no room for one.
      {0, "[M\n" + Items(0, 34) + "02=a@b\n99=c@d\n", "",
       "[M\n" + Items(0, 1) + "02=N@n\r\n" + Items(3, 34) + "02=a@b\n99=c@d\n"},
      {0, "[M\n" + Repeat(35, "0=a@b\n") + "2=c@d\n", "0:a|b|",
       "[M\n" + Repeat(35, "0=a@b\n") + "2=c@d\n"},
      // No such section.
      {2, "[M\n02=\n[M\n02=\n", "", "[M\n02=\n[M\n02=\n"},
      {0, "", "", ""},
      // Lines that are cut, in the section, outside it and in a comment; much of everything.
      {0, "[M\n02=" + bar + "@bcd\n[M\n02=" + bar + "@bcd\n", "2:" + bar + "||",
       "[M\n02=N@n\r\nbcd\n[M\n02=" + bar + "@bcd\n"},
      {0, "[M" + Repeat(198, "-") + "\n[M\n", "", "[M" + Repeat(198, "-") + "\n02=N@n\r\n[M\n"},
      {1, ";" + Repeat(198, "-") + "[M\n02=\n[M\n02=\n", "",
       ";" + Repeat(198, "-") + "[M\n02=\n[M\n02=N@n\r\n"},
      {0, much + "[M\n02=\n[M\n" + much, "", much + "[M\n02=N@n\r\n[M\n" + much},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.before.substr(0, 300));
    Lay(kMenuFile, c.before);
    EXPECT_TRUE(Load(c.section));
    EXPECT_EQ(Slots(), c.read);
    titles[2] = "N";
    files[2] = "n";
    EXPECT_EQ(Save(c.section), c.after != c.before);
    EXPECT_TRUE(Found(kMenuFile) == c.after);
  }
}

TEST_F(MenuFileTest, ThePictureMapKeepsItsHeadAndWhatHasNoSlot) {
  const std::string comments = Repeat(40, ";c\n"), entries = Repeat(34, "t f\r\n");
  const std::pair<std::string, std::string> cases[] = {
      // with another title in slot 0
      {comments + "\n;d\r\na b\n\n;gone\nc\n", comments + ";d\r\nN b\r\n---------- \r\n"},
      {";no end", ";no end\r\nN \r\n"},
      {"a b\n" + entries, "N b\r\n" + entries},
      {"a b\n" + entries + "36 f\n;c\n\n999", "N b\r\n" + entries + "36 f\n;c\n\n999"},
      {"a " + Repeat(197, "b") + "\n", "N " + Repeat(197, "b") + "\r\n"},
      {"a " + Repeat(198, "b") + "\n", "N " + Repeat(197, "b") + "\r\n---------- \r\n"},
      {";" + Repeat(198, "c") + "d\n", ";" + Repeat(198, "c") + "\r\nN \r\n"},
  };
  for (const auto& [before, after] : cases) {
    Lay(kGuidemap, before);
    EXPECT_TRUE(LoadMap());
    titles[0] = "N";
    EXPECT_TRUE(SaveMap());
    EXPECT_EQ(Found(kGuidemap), after);
  }
}

TEST_F(MenuFileTest, AChangeIsWholeOrNone) {
  titles[0] = "t";
  // More than is read at once.
  const std::string more = Repeat(900, ";" + Repeat(180, "-") + "\n");
  const Files after = {{"MENUFILE.DAT", "[M\n00=t@\r\n" + more}};
  const Files map_after = {{"Guidemap.DAT", more + "t \r\n"}};
  ExpectAllOrNothing(source, {{"MENUFILE.DAT", "[M\n" + more}}, after, [&] { return Save(0); });
  ExpectAllOrNothing(guidemap, {{"Guidemap.DAT", more}}, map_after, [&] { return SaveMap(); });
  source.Write("MENUFILE.NEW", "left behind, and longer than all that there is to be written");
  guidemap.Write("MENUFILE.NEW", "another one");
  EXPECT_TRUE(Save(0) && SaveMap());
  EXPECT_EQ(source.Content(), after);
  EXPECT_EQ(guidemap.Content(), map_after);
}

TEST_F(MenuFileTest, WhatCouldNotBeReadIsKnownToBeLacking) {
  EXPECT_TRUE(Load(0) && LoadMap()) << "there are no files";
  Lay(kMenuFile, "[M\n00=a@b\n");
  Lay(kGuidemap, "a b\n");
  ForEachFault([&](FaultyFileSystem& failing) {
    const ScopedFileSystem scope(failing);
    const bool complete = Load(0) && Slots() == "0:a|b|" && LoadMap() && Slots() == "0:a|b|";
    EXPECT_NE(complete, failing.Failed());
  });
}

TEST_F(MenuFileTest, CountsTheEntriesWithAnAt) {
  const std::string two = "00=a@b\n01=@\n02=\n03=--\n;4=a@b\n\n0@=\n@@@\nno@\n";
  const std::pair<std::string, std::string> cases[] = {
      {two, "-------0"},
      {two + "[M\n" + two, "-------2"},
      {Repeat(7, "[M\n" + two), "222222-2"},
      {Repeat(8, "[M\n" + two), "22222222"},
      {Repeat(8, "[M\n" + two) + "[M\n", "22222220"},
      {Repeat(100, "[M\n" + two), "22222222"},
      {"[M\n" + Repeat(40, "00=a@b\n"), "-------40"},
      // An @ at the end of a line that just fits, and two that come with the rest of longer ones.
      {"[M\n00=" + Repeat(145, "x") + "@\n00=" + Repeat(146, "x") + "@\n00=" + Repeat(149, "x") +
           "@",
       "-------2"},
      {"[M\n;" + Repeat(148, "-") + "[M\n", "0------0"},
      {"[M\n00=ァ\n01=　\n", "-------0"},
  };
  for (const auto& [content, counts] : cases) {
    Lay(kMenuFile, content);
    std::string found;
    for (const auto& n : CountMenuFiles(folder.Argument())) found += n ? std::to_string(*n) : "-";
    EXPECT_EQ(found, counts) << content;
  }
}

}  // namespace
}  // namespace orreryui
