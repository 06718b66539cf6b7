#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <optional>
#include <string>

#include "frame/line_file.h"
#include "tests/operations/test_folder.h"
#include "tests/support/each_fault.h"

namespace orreryui {
namespace {

class LineWriterTest : public testing::Test {
 protected:
  std::string PathOf(const std::string& name) const { return (folder_.Path() / name).string(); }

  // Plays `change` with a fault at each of its calls, and kills a process that makes it at each.
  // The folder must hold `before` or `after`, and what a change says that it did. Tried again, it
  // succeeds and leaves nothing beside.
  void ExpectAllOrNothing(const Files& before, const Files& after,
                          const std::function<bool()>& change) const {
    const auto expect = [&](bool changed) {
      Files found = folder_.Content();
      // What is left of a second file stays for the next writer.
      std::erase_if(found, [&](const auto& file) { return !after.contains(file.first); });
      ASSERT_EQ(found, changed ? after : before);
      EXPECT_TRUE(changed || change());
      EXPECT_EQ(folder_.Content(), after);
    };
    ForEachFault([&](FaultyFileSystem& files) {
      folder_.Lay(before);
      std::optional<ScopedFileSystem> scope(files);
      const bool changed = change();
      scope.reset();
      EXPECT_TRUE(changed || files.Failed());
      if (files.fault() == Fault::kOnce) {
        EXPECT_EQ(folder_.Content(), changed ? after : before);
        EXPECT_TRUE(!changed || files.all_on_disk());
      }
      expect(changed);
    });
    ForEachKill([&] { folder_.Lay(before); }, change, [&] { expect(folder_.Content() == after); });
  }

  TestFolder folder_;
  FaultyFileSystem never_synced_;
  ScopedFileSystem scope_{never_synced_};
};

TEST_F(LineWriterTest, CreatesAFileOrNone) {
  ExpectAllOrNothing({}, {{"f", "a\r\nb\r\n"}},
                     [&] { return CreateFile(PathOf("f").c_str(), "a\r\nb\r\n"); });
}

TEST_F(LineWriterTest, CreatesOverAnOldFileOrKeepsIt) {
  for (const std::string old : {"", "x\r\n", "a much longer content than the new one\r\n"}) {
    ExpectAllOrNothing({{"f", old}}, {{"f", "a\r\nb\r\n"}},
                       [&] { return CreateFile(PathOf("f").c_str(), "a\r\nb\r\n"); });
  }
}

TEST_F(LineWriterTest, AppendsALineOrNone) {
  const auto append = [&] { return AppendLine(PathOf("f").c_str(), "new", IfMissing::kFail); };
  ExpectAllOrNothing({{"f", "old\r\n"}}, {{"f", "old\r\nnew\r\n"}}, append);
  ExpectAllOrNothing({{"f", ""}}, {{"f", "new\r\n"}}, append);
  ExpectAllOrNothing({{"f", "no end"}}, {{"f", "no end\r\nnew\r\n"}}, append);
  ExpectAllOrNothing({}, {{"f", "new\r\n"}},
                     [&] { return AppendLine(PathOf("f").c_str(), "new", IfMissing::kCreate); });
}

TEST_F(LineWriterTest, RewritesInPlaceOrNotAtAll) {
  for (const std::string content : {"", "a\r\n", "a content that is longer than the old one\r\n"}) {
    ExpectAllOrNothing({{"f", "first\r\nsecond\r\n"}}, {{"f", content}},
                       [&] { return RewriteInPlace(PathOf("f").c_str(), content); });
  }
}

TEST_F(LineWriterTest, ReplacesThroughANewFileOrNotAtAll) {
  const auto replace = [&] {
    return ReplaceThroughNewFile(PathOf("f").c_str(), PathOf("f.new").c_str(), "new\r\n");
  };
  ExpectAllOrNothing({{"f", "old content\r\n"}}, {{"f", "new\r\n"}}, replace);
  folder_.Lay({{"f", "old\r\n"}, {"f.new", "left behind, and longer than the new content\r\n"}});
  EXPECT_TRUE(replace());
  EXPECT_EQ(folder_.Content(), (Files{{"f", "new\r\n"}}));
}

TEST_F(LineWriterTest, RenamesOrNotAtAll) {
  const auto rename = [&] { return RenameFile(PathOf("a").c_str(), PathOf("b").c_str()); };
  folder_.Lay({{"a", "A"}});
  {
    FaultyFileSystem files(2);  // the names can't be brought to the disk
    const ScopedFileSystem scope(files);
    EXPECT_FALSE(rename());
  }
  EXPECT_EQ(folder_.Content(), (Files{{"a", "A"}}));
  EXPECT_TRUE(rename());
  EXPECT_EQ(folder_.Content(), (Files{{"b", "A"}}));
  folder_.Lay({{"a", "A"}, {"B", "B"}});
  EXPECT_FALSE(rename()) << "the name is taken, in another case";
  EXPECT_EQ(folder_.Content(), (Files{{"a", "A"}, {"B", "B"}}));
}

TEST_F(LineWriterTest, WhatMustExistIsNotMade) {
  EXPECT_FALSE(AppendLine(PathOf("f").c_str(), "new", IfMissing::kFail));
  EXPECT_FALSE(RewriteInPlace(PathOf("f").c_str(), "new"));
  EXPECT_FALSE(ReplaceThroughNewFile(PathOf("f").c_str(), PathOf("g").c_str(), "new"));
  EXPECT_FALSE(RemoveFile(PathOf("f").c_str()));
  EXPECT_FALSE(RenameFile(PathOf("f").c_str(), PathOf("g").c_str()));
  EXPECT_FALSE(FileExists(PathOf("f").c_str()));
  EXPECT_EQ(folder_.Content(), Files());
}

TEST_F(LineWriterTest, RefusesFoldersAndPathsThroughFiles) {
  folder_.Lay({{"file", "x"}});
  std::filesystem::create_directory(folder_.Path() / "folder");
  for (const std::string name : {"folder", "missing/f", "file/f"}) {
    EXPECT_FALSE(CreateFile(PathOf(name).c_str(), "new")) << name;
    EXPECT_FALSE(AppendLine(PathOf(name).c_str(), "new", IfMissing::kCreate)) << name;
    EXPECT_FALSE(FileExists(PathOf(name).c_str())) << name;
  }
  EXPECT_EQ(folder_.Read("file"), "x");
}

// The system itself refuses to let a file grow, as it does on a full disk.
TEST_F(LineWriterTest, PutsFilesBackWhenTheSystemStopsAWrite) {
  const std::string old(900, 'o');
  folder_.Lay({{"append", old}, {"rewrite", old}, {"replace", old}});
  const pid_t child = fork();
  ASSERT_NE(child, -1);
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1000, 1000};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) _exit(1);
    const std::string more(2000, 'n');
    const bool any = AppendLine(PathOf("append").c_str(), more.c_str(), IfMissing::kFail) ||
                     RewriteInPlace(PathOf("rewrite").c_str(), more) ||
                     CreateFile(PathOf("create").c_str(), more) ||
                     ReplaceThroughNewFile(PathOf("replace").c_str(), PathOf("new").c_str(), more);
    _exit(any ? 2 : 0);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  EXPECT_EQ(folder_.Content(), (Files{{"append", old}, {"rewrite", old}, {"replace", old}}));
}

// The superuser may write anywhere, so the writing is done by a process of a user who may not.
TEST_F(LineWriterTest, AFolderAndFilesThatMayOnlyBeReadStayAsTheyAre) {
  const Files before{{"append", "old\r\n"}, {"rewrite", "old\r\n"}, {"replace", "old\r\n"}};
  folder_.Lay(before);
  const auto may_read = std::filesystem::perms::owner_read | std::filesystem::perms::group_read |
                        std::filesystem::perms::others_read;
  const auto may_enter = std::filesystem::perms::owner_exec | std::filesystem::perms::group_exec |
                         std::filesystem::perms::others_exec;
  for (const auto& [name, bytes] : before) permissions(folder_.Path() / name, may_read);
  permissions(folder_.Path(), may_read | may_enter);

  const pid_t child = fork();
  ASSERT_NE(child, -1);
  if (child == 0) {
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && setuid(kNobody) != 0) _exit(1);
    const bool any = AppendLine(PathOf("append").c_str(), "new", IfMissing::kFail) ||
                     AppendLine(PathOf("missing").c_str(), "new", IfMissing::kCreate) ||
                     RewriteInPlace(PathOf("rewrite").c_str(), "new") ||
                     CreateFile(PathOf("create").c_str(), "new") ||
                     ReplaceThroughNewFile(PathOf("replace").c_str(), PathOf("new").c_str(), "new");
    _exit(any ? 2 : LineReader(PathOf("append").c_str(), 99).IsOpen() ? 0 : 3);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  permissions(folder_.Path(), std::filesystem::perms::owner_all);
  EXPECT_EQ(folder_.Content(), before);
}

}  // namespace
}  // namespace orreryui
