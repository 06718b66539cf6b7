// What the master lists and member files hold after each change, whatever was in them and whatever
// the disk does.
#include "routes/maps.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/strings/japanese_literal.h"
#include "points/packed_point.h"
#include "routes/member_file.h"
#include "tests/support/each_fault.h"
#include "tests/support/stopped_clock.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kList[] = "RoutMstr.dat";

class MapsTest : public testing::Test {
 protected:
  CString ListPath() const { return MasterListPath(folder.Argument(), MapKind::kRoute); }

  // An entry line for a member file in the folder.
  std::string Entry(const std::string& name, const std::string& member) const {
    return name + "@" + folder.PathOf(member) + "\r\n";
  }

  bool Register(const std::string& name, MapKind kind = MapKind::kRoute) const {
    return RegisterMap(folder.Argument(), kind, name.c_str(), {"p 1 2 i f.txt"});
  }

  MasterList Read() const { return ReadMasterList(ListPath()); }

  bool Rename(std::size_t index, const std::string& name) const {
    MasterList list = Read();
    return RenameMap(ListPath(), list, index, {name.c_str(), MemberOf(list, index)});
  }
  bool Delete(std::size_t index) const {
    MasterList list = Read();
    return DeleteMap(ListPath(), list, index, MemberOf(list, index));
  }
  static CString MemberOf(const MasterList& list, std::size_t index) {
    return index < list.entries.size() ? SplitMasterEntry(list.entries[index]).path : CString();
  }

  TestFolder folder;
  StoppedClock clock;
  ScopedClock time{clock};
  FaultyFileSystem never_synced;
  ScopedFileSystem disk{never_synced};
};

std::string Lines(int first, int last) {
  std::string lines;
  for (int i = first; i <= last; ++i) lines += "n" + std::to_string(i) + "@p\r\n";
  return lines;
}

TEST_F(MapsTest, EveryLineThatHoldsTextAndIsNoCommentIsAnEntry) {
  const std::string full(199, 'x');
  const struct {
    std::string bytes;
    std::vector<std::string> entries;
  } cases[] = {
      {"", {}},
      {";a@b\r\n\r\n;\n", {}},
      {"a@1\r\n;c@2\r\n\r\nb@2\nc@3", {"a@1", "b@2", "c@3"}},
      {" ;a\r\nb@1@2\r\n@\r\n", {" ;a", "b@1@2", "@"}},
      {full + "\r\nb", {full, "b"}},
      {full + "@y\r\n" + full + ";y\r\n", {full, "@y", full}},
      {std::string("a\0b@1\r\nb", 9), {"a", "b"}},
  };
  for (const auto& [bytes, entries] : cases) {
    folder.Write(kList, bytes);
    std::vector<std::string> found;
    for (const CString& entry : Read().entries) found.emplace_back(entry);
    EXPECT_EQ(found, entries) << bytes;
  }
  for (const int count : {511, 512, 513, 5000}) {
    folder.Write(kList, Lines(1, count));
    const MasterList list = Read();
    EXPECT_EQ(list.entries.size(), static_cast<std::size_t>(std::min(count, 512)));
    EXPECT_EQ(list.rest, Lines(513, count));
  }
  std::filesystem::remove(folder.PathOf(kList));
  EXPECT_THAT(Read().entries, IsEmpty());
  EXPECT_TRUE(Read().complete);
  std::filesystem::create_directory(folder.PathOf(kList));
  EXPECT_FALSE(Read().complete);
}

TEST_F(MapsTest, AnEntryFallsApartAtItsFirstAt) {
  const struct {
    const char *entry, *label, *name, *path;
  } cases[] = {
      {"a@b@c", "a", "a", "b@c"},
      {"@b", "", "", "b"},
      {"a@", "a", "a", ""},
      {"a b|$#", "a b|$#", "", "a b|$#"},
      {"ァ表@C:\\ー\\x"_sj, "ァ表"_sj, "ァ表"_sj, "C:\\ー\\x"_sj},
      {"x\x81@b", "x\x81@b", "", "x\x81@b"},
  };
  for (const auto& [entry, label, name, path] : cases) {
    EXPECT_STREQ(MasterEntryLabel(entry), label);
    EXPECT_STREQ(SplitMasterEntry(entry).name, name);
    EXPECT_STREQ(SplitMasterEntry(entry).path, path);
  }
}

TEST_F(MapsTest, ARegistrationAppendsToWhateverTheListHolds) {
  const std::string entry = Entry("x", "G04C2513.5R");
  for (const std::string& before :
       {std::string(), std::string(";note\r\n\r\n"), Lines(1, 513) + ";c\r\n", Lines(1, 5000)}) {
    folder.Lay({{kList, before}});
    EXPECT_TRUE(Register("x"));
    EXPECT_EQ(folder.Content(),
              (Files{{kList, before + entry}, {"G04C2513.5R", "p 1 2 i f.txt\r\n"}}));
  }
  folder.Lay({{kList, "a@b"}});
  EXPECT_TRUE(Register("x"));
  EXPECT_EQ(folder.Read(kList), "a@b\r\n" + entry);
  folder.Lay({});
  EXPECT_TRUE(Register("y", MapKind::kArea));
  EXPECT_EQ(folder.Read("AreaMstr.dat"), Entry("y", "G04C2513.5A"));
}

TEST_F(MapsTest, NamesThatTheListCannotHoldAreRefused) {
  const int room = 199 - 1 - static_cast<int>(folder.PathOf("G04C2513.5R").size());
  const std::string longest(static_cast<std::size_t>(room), 'n');
  const struct {
    std::string name;
    bool fits;
  } cases[] = {
      {"", true},      {"a@b", true},    {" ;", true},           {"a|$# ", true},
      {longest, true}, {";a", false},    {longest + "n", false}, {std::string(300, 'n'), false},
      {"a\nb", false}, {"x\x81", false}, {"x\x81\\", true},      {"ァポ"_sj, true},
  };
  for (const auto& [name, fits] : cases) {
    folder.Lay({});
    EXPECT_EQ(Register(name), fits) << name;
    const std::string entry = fits ? Entry(name, "G04C2513.5R") : "";
    EXPECT_EQ(folder.Read(kList).value_or(""), entry);
    EXPECT_EQ(folder.Content().size(), fits ? 2u : 0u);

    const std::string before = Entry("old", "G04C2513.5R");
    folder.Lay({{kList, ";c\r\n" + before}});
    EXPECT_EQ(Rename(0, name), fits) << name;
    EXPECT_EQ(folder.Content(), (Files{{kList, fits ? entry : ";c\r\n" + before}}));
  }
}

TEST_F(MapsTest, MembersAreNamedByTheNextMinuteThatIsFree) {
  const struct {
    std::time_t now;
    MapKind kind;
    std::vector<std::string> names;
  } cases[] = {
      {1103979900, MapKind::kRoute, {"G04C2513.5R", "G04C2513.6R"}},
      {1078306919, MapKind::kArea, {"G0430309.41A", "G0430309.42A"}},
      {1104537599, MapKind::kRoute, {"G04C3123.59R", "G0510100.0R", "G0510100.1R"}},
      {1096588740, MapKind::kRoute, {"G0493023.59R", "G04A0100.0R"}},
  };
  for (const auto& [now, kind, names] : cases) {
    folder.Lay({});
    clock.now = now;
    for (const std::string& name : names) {
      EXPECT_STREQ(MakeMemberName(folder.Argument(), kind), name.c_str());
      EXPECT_TRUE(Register("x", kind));
      EXPECT_NE(folder.Read(name), std::nullopt);
    }
  }
  // A name that is taken in another case, or by a folder.
  folder.Lay({{"g0493023.59r", "other"}});
  std::filesystem::create_directory(folder.PathOf("G04A0100.0R"));
  EXPECT_STREQ(MakeMemberName(folder.Argument(), MapKind::kRoute), "G04A0100.1R");
}

TEST_F(MapsTest, LinesAreWrittenInLowerCaseAndReadBackAsTheSamePoints) {
  const struct {
    const char *packed, *line;
  } cases[] = {
      {"P#I@C:\\A.JPG$1$2$C:\\A.TXT", "p 1 2 i c:\\a.jpg c:\\a.txt"},
      {"p#i@a.txt$1$2$a.jpg", "p 1 2 i a.txt a.jpg"},
      {"p#i@a.jpg$1$2$b.jpg", "p 1 2$b.jpg i a.jpg"},
      {"p#@a.txt$1$2", "p 1 2  a.txt"},
      {"#@$$", "    "},
      // Both kinds of suffix without a second file.
      {"p#i@a.jpg.txt$1$2", "p 1 2 i a.jpg.txt"},
      {"p.txt#i@a.jpg$1$2", "p.txt 1 2 i a.jpg"},
      {"p#i@a.jpg.txt$1$2$b", "p 1 2 i a.jpg.txt b"},
      // Separators in the fields.
      {"p#q#i@a$1$2", "p 1 2 q#i a"},
      {"p#i@@a$1$2", "p 1 2 i @a"},
      {"ァーＡ#ポァA@a$1$2"_sj, "ァーＡ 1 2 ポァa a"_sj},
  };
  for (const auto& [packed, line] : cases) {
    EXPECT_THAT(MemberLines({packed}), ElementsAre(CString(line)));
    CString lower = packed;
    lower.MakeLower();
    EXPECT_STREQ(PackPointLine(line), lower);
  }
}

TEST_F(MapsTest, ARenameKeepsOrderAndFileAndADeletionTakesBoth) {
  const std::string rest = Lines(513, 600) + ";c\r\n\r\nlast";
  const auto many = [&](const std::string& first) {
    return ";c\r\n" + first + Lines(2, 511) + "\r\n" + Entry("n512", "b") + rest;
  };
  folder.Lay({{kList, many(Entry("n1", "a"))}, {"a", "1"}, {"b", "2"}});
  EXPECT_TRUE(Rename(0, "ァポ"_sj));
  const std::string renamed = Entry("ァポ"_sj, "a") + Lines(2, 511) + Entry("n512", "b") + rest;
  EXPECT_EQ(folder.Content(), (Files{{kList, renamed}, {"a", "1"}, {"b", "2"}}));
  EXPECT_TRUE(Delete(511));
  const std::string left = Entry("ァポ"_sj, "a") + Lines(2, 511) + rest;
  EXPECT_EQ(folder.Content(), (Files{{kList, left}, {"a", "1"}}));
  EXPECT_EQ(Read().entries.size(), 512u);

  folder.Lay({{kList, ";c\r\n" + Entry("x", "a")}, {"a", "1"}});
  EXPECT_TRUE(Delete(0));
  EXPECT_EQ(folder.Content(), (Files{{kList, ""}}));
}

TEST_F(MapsTest, OneEntryChangesOfWhatTheListHoldsByThen) {
  folder.Lay(
      {{kList, Entry("x", "a") + Entry("y", "b") + Entry("x", "a")}, {"a", "1"}, {"b", "2"}});
  MasterList shown = Read();
  std::size_t index = 2;
  folder.Write(kList, Entry("x", "a") + Entry("x", "a") + Entry("new", "c"));
  EXPECT_TRUE(RenameMap(ListPath(), shown, index, {"z", folder.PathOf("a").c_str()}));
  EXPECT_EQ(index, 1u);
  EXPECT_EQ(folder.Read(kList), Entry("x", "a") + Entry("z", "a") + Entry("new", "c"));
  EXPECT_TRUE(DeleteMap(ListPath(), shown, 0, folder.PathOf("a").c_str()));
  EXPECT_EQ(folder.Content(), (Files{{kList, Entry("z", "a") + Entry("new", "c")}, {"b", "2"}}));
  folder.Write(kList, Entry("z", "other"));
  index = 0;
  EXPECT_FALSE(RenameMap(ListPath(), shown, index, {"w", folder.PathOf("b").c_str()}));
  EXPECT_FALSE(DeleteMap(ListPath(), shown, 0, folder.PathOf("b").c_str()));
  EXPECT_EQ(folder.Content(), (Files{{kList, Entry("z", "other")}, {"b", "2"}}));
}

TEST_F(MapsTest, AMapWhoseFileCannotGoStays) {
  TestFolder outside;
  outside.Write("member", "1");
  std::filesystem::create_directory(folder.PathOf("folder"));
  std::filesystem::create_directory(folder.PathOf("inner"));
  folder.Write("inner/member", "1");
  const std::string list = ";c\r\n" + Entry("gone", "gone") + Entry("folder", "folder") +
                           Entry("inner", "inner/member") + "outside@" +
                           (outside.Path() / "member").string() + "\r\nno path\r\nempty@\r\n";
  folder.Write(kList, list);
  for (std::size_t index = 0; index < Read().entries.size(); ++index) {
    EXPECT_FALSE(Delete(index)) << index;
    EXPECT_EQ(folder.Read(kList), list);
  }
  EXPECT_EQ(outside.Read("member"), "1");
  EXPECT_EQ(folder.Read("inner/member"), "1");
}

TEST_F(MapsTest, AMapThatCannotBeReadBackIsNotStored) {
  const CString longest = std::string(199, 'x').c_str();
  for (const CString& line : {longest + "x", CString("a\nb"), CString("\n")}) {
    EXPECT_FALSE(RegisterMap(folder.Argument(), MapKind::kRoute, "x", {longest, line}));
  }
  EXPECT_EQ(folder.Content(), Files());
  EXPECT_TRUE(RegisterMap(folder.Argument(), MapKind::kRoute, "x", {longest, ""}));
  EXPECT_FALSE(RegisterMap(folder.Argument() + "none/", MapKind::kRoute, "x", {}));
  folder.Lay({});
  std::filesystem::create_directory(folder.PathOf(kList));
  EXPECT_FALSE(Register("x"));
  EXPECT_TRUE(std::filesystem::is_directory(folder.PathOf(kList)));
  EXPECT_EQ(folder.Read("G04C2513.5R"), std::nullopt);
}

TEST_F(MapsTest, AFaultOrAKillLeavesTheMapWholeOrGoneWhole) {
  const Files before = {
      {kList, ";c\r\n" + Entry("x", "a") + Entry("y", "b")}, {"a", "1"}, {"b", "2"}};
  const std::function<bool()> changes[] = {[this] { return Register("new"); },
                                           [this] { return Rename(1, "renamed"); },
                                           [this] { return Delete(0); }};
  for (const auto& change : changes) {
    folder.Lay(before);
    EXPECT_TRUE(change());
    const Files after = folder.Content();
    ForEachFault([&](FaultyFileSystem& files) {
      folder.Lay(before);
      files.longest_read = 50;  // a list may break off in its middle
      std::optional<ScopedFileSystem> faulty(files);
      const bool changed = change();
      faulty.reset();
      Read();
      EXPECT_EQ(folder.Content(), changed ? after : before);
    });
    ForEachKill([&] { folder.Lay(before); }, change,
                [&] {
                  Read();
                  EXPECT_TRUE(folder.Content() == before || folder.Content() == after);
                });
  }
}

}  // namespace
}  // namespace orreryui
