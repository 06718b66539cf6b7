// What the master lists and member files hold after each change, whatever was in them.
#include "routes/maps.h"

#include <gtest/gtest.h>

#include "platform/strings/japanese_literal.h"
#include "tests/support/each_fault.h"
#include "tests/support/stopped_clock.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

constexpr char kList[] = "RoutMstr.dat";
constexpr char kMember[] = "G04C2513.5R";

class MapsTest : public testing::Test {
 protected:
  CString ListPath() const { return MasterListPath(folder.Argument(), MapKind::kRoute); }

  // An entry line for a member file in the folder.
  std::string Entry(const std::string& name, const std::string& member) const {
    return name + "@" + folder.PathOf(member) + "\r\n";
  }

  bool Register(const std::string& name, MapKind kind = MapKind::kRoute) const {
    return RegisterMap(folder.Argument(), kind, name.c_str(), {"p"});
  }
  bool Rename(const std::string& name) const {
    MasterList list = ReadMasterList(ListPath());
    std::size_t first = 0;
    const CString path = SplitMasterEntry(list.entries.at(first)).path;
    return RenameMap(ListPath(), list, first, {name.c_str(), path});
  }

  TestFolder folder;
  StoppedClock clock;
  ScopedClock time{clock};
};

std::string Lines(int first, int last) {
  std::string lines;
  for (int i = first; i <= last; ++i) lines += "n" + std::to_string(i) + "@p\r\n";
  return lines;
}

TEST_F(MapsTest, ARenameKeepsThePathTheOrderAndWhatIsNotRead) {
  const std::string full(199, 'x');
  const std::string rest = ";c\r\n\r\nlast";
  const std::pair<std::string, std::string> cases[] = {
      {";c\r\n\r\na@1\r\n;c@2\r\nb@2\nc@3", "new@1\r\nb@2\r\nc@3\r\n"},
      {" ;a\r\n b@1@2\r\n@\r\n", "new@ ;a\r\n b@1@2\r\n@\r\n"},
      {"a@b@c", "new@b@c\r\n"},
      {"@", "new@\r\n"},
      {"ァ@C:\\ー\\x"_sj, "new@C:\\ー\\x\r\n"_sj},
      {"x\x81@b|$#", "new@x\x81@b|$#\r\n"},
      {std::string("a\0b@1\r\nb", 9), "new@a\r\nb\r\n"},
      {"a\n" + full + "\n" + full + "@y\n" + full + ";y",
       "new@a\r\n" + full + "\r\n" + full + "\r\n@y\r\n" + full + "\r\n"},
      {"a@1\n" + Lines(2, 512) + rest, "new@1\r\n" + Lines(2, 512) + rest},
      {Lines(1, 5000), "new@p\r\n" + Lines(2, 5000)},
  };
  for (const auto& [before, after] : cases) {
    folder.Lay({{kList, before}});
    EXPECT_TRUE(Rename("new"));
    EXPECT_EQ(folder.Content(), (Files{{kList, after}}));
  }
}

TEST_F(MapsTest, ARegistrationAppendsANameThatTheListCanHold) {
  const std::string longest(199 + 2 - Entry("", kMember).size(), 'n');
  const struct {
    std::string list, name;
    bool fits = true;
  } cases[] = {
      {"", ""},
      {";note\r\n\r\n", "a@b|$# "},
      {Lines(1, 5000) + ";c\r\n", " ;"},
      {"", longest},
      {"", "x\x81\\"},
      {"", "ァポ"_sj},
      {"a@b\n", ";a", false},
      {"a@b\n", longest + "n", false},
      {"a@b\n", std::string(300, 'n'), false},
      {"a@b\n", "a\nb", false},
      {"a@b\n", "x\x81", false},
  };
  for (const auto& [list, name, fits] : cases) {
    folder.Lay({{kList, list}});
    EXPECT_EQ(Register(name), fits) << name;
    const Files after = {{kList, list + Entry(name, kMember)}, {kMember, "p\r\n"}};
    EXPECT_EQ(folder.Content(), fits ? after : (Files{{kList, list}})) << name;
  }
}

TEST_F(MapsTest, MembersAreNamedByTheNextMinuteThatIsFree) {
  const struct {
    std::time_t now;
    MapKind kind;
    std::vector<std::string> names;
  } cases[] = {
      {1078306919, MapKind::kArea, {"G0430309.41A", "G0430309.42A"}},
      {1104537599, MapKind::kRoute, {"G04C3123.59R", "G0510100.0R", "G0510100.1R"}},
      {1096588740, MapKind::kRoute, {"G0493023.59R", "G04A0100.0R"}},
  };
  for (const auto& [now, kind, names] : cases) {
    folder.Lay({});
    clock.now = now;
    for (const std::string& name : names) {
      EXPECT_TRUE(Register("x", kind));
      EXPECT_NE(folder.Read(name), std::nullopt);
    }
  }
  // A name that is taken in another case, or by a folder.
  folder.Lay({{"g0493023.59r", "other"}});
  std::filesystem::create_directory(folder.PathOf("G04A0100.0R"));
  EXPECT_TRUE(Register("x"));
  EXPECT_EQ(folder.Read(kList), Entry("x", "G04A0100.1R"));
}

TEST_F(MapsTest, AMapThatCannotBeReadBackIsNotStoredAndNoneIsNotDeleted) {
  const CString longest = std::string(199, 'x').c_str();
  for (const CString& line : {longest + "x", CString("a\nb"), CString("\n")}) {
    EXPECT_FALSE(RegisterMap(folder.Argument(), MapKind::kRoute, "x", {longest, line}));
  }
  EXPECT_FALSE(RegisterMap(folder.Argument() + "none/", MapKind::kRoute, "x", {}));
  EXPECT_EQ(folder.Content(), Files());
  EXPECT_TRUE(RegisterMap(folder.Argument(), MapKind::kRoute, "x", {longest, ""}));
  MasterList none;
  EXPECT_FALSE(DeleteMap(ListPath(), none, 0, folder.PathOf(kMember).c_str()));
}

TEST_F(MapsTest, AKillLeavesTheMapWholeOrGoneWhole) {
  const Files before = {
      {kList, ";c\r\n" + Entry("x", "a") + Entry("y", "b")}, {"a", "1"}, {"b", "2"}};
  const std::function<bool()> changes[] = {[this] { return Register("new"); },
                                           [this] {
                                             MasterList list = ReadMasterList(ListPath());
                                             return DeleteMap(ListPath(), list, 0,
                                                              folder.PathOf("a").c_str());
                                           }};
  for (const auto& change : changes) {
    folder.Lay(before);
    EXPECT_TRUE(change());
    const Files after = folder.Content();
    ForEachKill([&] { folder.Lay(before); }, change,
                [&] {
                  ReadMasterList(ListPath());
                  EXPECT_TRUE(folder.Content() == before || folder.Content() == after);
                });
  }
}

}  // namespace
}  // namespace orreryui
