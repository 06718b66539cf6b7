#include "frame/file_changes.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "frame/line_file.h"
#include "tests/support/each_fault.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

constexpr char kList[] = "LIST.DAT";

class FileChangesTest : public testing::Test {
 protected:
  CString At(const std::string& name) const { return folder_.PathOf(name).c_str(); }

  // The first of four leaves, the others move up, and a new one comes behind.
  void AddSteps(FileChanges& changes) const {
    changes.Remove(At("f1"));
    for (int i = 2; i <= 4; ++i) {
      changes.Rename(At("f" + std::to_string(i)), At("f" + std::to_string(i - 1)));
    }
    changes.Create(At("f4"), "e");
  }
  bool Change() const {
    FileChanges changes(At(kList));
    AddSteps(changes);
    return changes.Commit("bcde");
  }
  Files Reopened() const {
    EXPECT_TRUE(FinishChanges(At(kList)));
    return folder_.Content();
  }

  TestFolder folder_;
  FaultyFileSystem never_synced_;
  ScopedFileSystem scope_{never_synced_};
  const Files before_{{kList, "abcd"}, {"f1", "a"}, {"f2", "b"}, {"f3", "c"}, {"f4", "d"}};
  const Files after_{{kList, "bcde"}, {"f1", "b"}, {"f2", "c"}, {"f3", "d"}, {"f4", "e"}};
};

TEST_F(FileChangesTest, AFaultLeavesTheOldStateOrTheNew) {
  int refusals = 0;
  ForEachFault([&](FaultyFileSystem& files) {
    folder_.Lay(before_);
    bool changed = false;
    {
      const ScopedFileSystem scope(files);
      changed = Change();
    }
    refusals += changed ? 0 : 1;
    EXPECT_EQ(Reopened(), changed ? after_ : before_);
    if (changed) return;
    EXPECT_TRUE(Change()) << "it can be tried again";
    EXPECT_EQ(folder_.Content(), after_);
  });
  EXPECT_GT(refusals, 20);
}

TEST_F(FileChangesTest, AKillLeavesTheOldStateOrTheNew) {
  const auto lay = [&] { folder_.Lay(before_); };
  bool changed = false;
  ForEachKill(
      lay, [&] { Change(); },
      [&] {
        const Files found = Reopened();
        EXPECT_EQ(found, changed || found == after_ ? after_ : before_);
        changed = found == after_;
      });
  EXPECT_TRUE(changed) << "once nothing was killed";
}

// After a kill at each call of the change, its recovery is killed at its first call, the next one
// at its second, and so on.
TEST_F(FileChangesTest, ARecoveryCanBeCutOffToo) {
  int call = 0;
  const auto change_is_killed = [&] {
    folder_.Lay(before_);
    return EndsAtCall(call, [&] { Change(); });
  };
  for (call = 1; change_is_killed(); ++call) {
    const Files expected = Reopened();
    change_is_killed();
    for (int second = 1; EndsAtCall(second, [&] { FinishChanges(At(kList)); }); ++second) {
    }
    EXPECT_EQ(folder_.Content(), expected) << call;
  }
}

TEST_F(FileChangesTest, MakesAListThatIsMissing) {
  const auto change = [&] {
    FileChanges changes(At(kList));
    changes.Create(At("f"), "new");
    return changes.Commit("list");
  };
  const Files after{{kList, "list"}, {"f", "new"}};
  ForEachKill([&] { folder_.Lay({}); }, change,
              [&] {
                const Files found = Reopened();
                EXPECT_TRUE(found.empty() || found == after) << found.size();
              });
  EXPECT_EQ(folder_.Content(), after);
}

TEST_F(FileChangesTest, WhatCannotBeDoneRefusesTheWholeChange) {
  std::filesystem::create_directory(folder_.Path() / "folder");
  const std::function<void(FileChanges&)> kCases[] = {
      [&](FileChanges& c) { c.Remove(At("missing")); },
      [&](FileChanges& c) { c.Remove(At("folder")); },
      [&](FileChanges& c) { c.Remove(At("f1")), c.Remove(At("f1")); },
      [&](FileChanges& c) { c.Rename(At("missing"), At("x")); },
      [&](FileChanges& c) { c.Rename(At("f1"), At("F2")); },
      [&](FileChanges& c) { c.Rename(At("f1"), At("folder\\x")); },
      [&](FileChanges& c) { c.Create(At("F1"), "x"); },
      [&](FileChanges& c) { c.Create(At("folder/.."), "x"); },
      [&](FileChanges& c) { c.Create(At("a\nb"), "x"); },
      [&](FileChanges& c) { c.Remove(At("folder/f1")); },
      [&](FileChanges& c) { c.Remove(At("folder/../f1")), c.Remove(At("f1")); },
  };
  folder_.Lay(before_);
  std::filesystem::create_directory(folder_.Path() / "folder");
  for (const auto& step : kCases) {
    FileChanges changes(At(kList));
    changes.Rename(At("f4"), At("f5"));
    step(changes);
    EXPECT_FALSE(changes.Commit("x")) << &step - kCases;
  }
  std::filesystem::remove(folder_.Path() / "folder");
  EXPECT_EQ(folder_.Content(), before_);
}

// However their folder is spelled, the files stand beside the list.
TEST_F(FileChangesTest, KnowsItsFolderUnderOtherNames) {
  TestFolder other;
  create_directory_symlink(folder_.Path(), other.Path() / "link");
  for (const std::string& folder : {folder_.Path().string() + "/./", other.PathOf("link/")}) {
    folder_.Lay(before_);
    const auto change = [&](FileChanges&& changes) {
      for (const char* name : {"f1", "f2", "f3", "f4"}) changes.Remove((folder + name).c_str());
      return changes.Commit("x");
    };
    EXPECT_TRUE(change(FileChanges(At(kList)))) << folder;
    EXPECT_EQ(folder_.Content(), (Files{{kList, "x"}}));
  }
}

TEST_F(FileChangesTest, FreesNamesInAnyCase) {
  folder_.Lay({{kList, "ab"}, {"F1", "a"}, {"F2", "b"}});
  {
    FileChanges changes(At(kList));
    changes.Remove(At("f1"));
    changes.Rename(At("f2"), At("f1"));
    EXPECT_TRUE(changes.Commit("b"));
    EXPECT_EQ(never_synced_.listings(), 1);
  }
  EXPECT_EQ(Reopened(), (Files{{kList, "b"}, {"f1", "b"}}));
}

// A journal that somebody else wrote moves nothing out of the folder, and drops nothing.
TEST_F(FileChangesTest, AStrangeJournalHarmsNothing) {
  const std::string name = folder_.Path().filename().string();
  const std::string journal = ".LIST.DAT.orreryui-changes";
  const Files before{{kList, "abcd"}, {"f1", "a"}};
  const TestFolder other;
  other.Write("victim", "v");
  const std::string victim = "../" + other.Path().filename().string() + "/victim";
  for (const std::string& text :
       {"remove/" + victim + "\nready\n", "rename/x/" + victim + "\nready\n",
        "rename/../" + victim + "\nready\n", std::string("remove/f1\ncreate/f1\nready\n"),
        std::string("remove/f1\n"), std::string("ready"), std::string(100, '\0')}) {
    folder_.Lay(before);
    folder_.Write(journal, text);
    EXPECT_EQ(Reopened(), before) << text;
    EXPECT_EQ(other.Read("victim"), "v") << text;
  }
  std::filesystem::create_symlink(other.Path() / "victim", folder_.Path() / journal);
  EXPECT_FALSE(Change());
  EXPECT_FALSE(FinishChanges(At(kList)));
  EXPECT_EQ(other.Read("victim"), "v");
}

TEST_F(FileChangesTest, AListWithTwoNamesIsOverwrittenUnderBoth) {
  folder_.Lay(before_);
  create_hard_link(folder_.Path() / kList, folder_.Path() / "other");
  EXPECT_TRUE(Change());
  Files after = after_;
  after["other"] = "bcde";
  EXPECT_EQ(folder_.Content(), after);
}

TEST_F(FileChangesTest, KeepsOtherProcessesOut) {
  folder_.Lay(before_);
  {
    FileChanges changes(At(kList));
    EXPECT_FALSE(EndsAtCall(0, [&] {
      AppendLine(At(kList), "x", IfMissing::kFail);
      Change();
    }));
    AddSteps(changes);
    EXPECT_TRUE(changes.Commit("bcde"));
    EXPECT_FALSE(changes.Commit("again"));
  }
  EXPECT_EQ(folder_.Content(), after_);
}

}  // namespace
}  // namespace orreryui
