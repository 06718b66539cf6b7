#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <functional>
#include <string>
#include <vector>

#include "frame/file_changes.h"
#include "frame/line_file.h"
#include "tests/support/each_fault.h"

namespace orreryui {
namespace {

class LineWriterTest : public testing::Test {
 protected:
  CString At(const std::string& name) const { return folder_.PathOf(name).c_str(); }

  TestFolder folder_;
  FaultyFileSystem never_synced_;
  ScopedFileSystem scope_{never_synced_};
};

TEST_F(LineWriterTest, CreatesAFileOrKeepsWhatWasThere) {
  const Files after = {{"f", "a\r\nb\r\n"}};
  const std::string longer = "a much longer content than the new one\r\n";
  for (const Files& before :
       {Files(), Files{{"f", ""}}, Files{{"f", "x\r\n"}}, Files{{"f", longer}}}) {
    ExpectAllOrNothing(folder_, before, after, [&] { return CreateFile(At("f"), "a\r\nb\r\n"); });
  }
}

TEST_F(LineWriterTest, AppendsALineOrNone) {
  const auto append = [&] { return AppendLine(At("f"), "new", IfMissing::kFail); };
  ExpectAllOrNothing(folder_, {{"f", "old\r\n"}}, {{"f", "old\r\nnew\r\n"}}, append);
  ExpectAllOrNothing(folder_, {{"f", ""}}, {{"f", "new\r\n"}}, append);
  ExpectAllOrNothing(folder_, {{"f", "no end"}}, {{"f", "no end\r\nnew\r\n"}}, append);
  ExpectAllOrNothing(folder_, {}, {{"f", "new\r\n"}},
                     [&] { return AppendLine(At("f"), "new", IfMissing::kCreate); });
}

TEST_F(LineWriterTest, RewritesInPlaceOrNotAtAll) {
  for (const std::string content : {"", "a\r\n", "a content that is longer than the old one\r\n"}) {
    ExpectAllOrNothing(folder_, {{"f", "first\r\nsecond\r\n"}}, {{"f", content}},
                       [&] { return RewriteInPlace(At("f"), content); });
  }
}

TEST_F(LineWriterTest, ReplacesThroughANewFileOrNotAtAll) {
  const auto replace = [&] { return ReplaceThroughNewFile(At("f"), At("f.new"), "new\r\n"); };
  ExpectAllOrNothing(folder_, {{"f", "old content\r\n"}}, {{"f", "new\r\n"}}, replace);
  folder_.Lay({{"f", "old\r\n"}, {"f.new", "left behind, and longer than the new content\r\n"}});
  EXPECT_TRUE(replace());
  EXPECT_EQ(folder_.Content(), (Files{{"f", "new\r\n"}}));
}

TEST_F(LineWriterTest, RenamesOrNotAtAll) {
  const auto rename = [&] { return RenameFile(At("a"), At("b")); };
  ExpectAllOrNothing(folder_, {{"a", "A"}}, {{"b", "A"}}, rename);
  folder_.Lay({{"a", "A"}, {"B", "B"}});
  EXPECT_FALSE(rename()) << "the name is taken, in another case";
  EXPECT_EQ(folder_.Content(), (Files{{"a", "A"}, {"B", "B"}}));
}

TEST_F(LineWriterTest, WhatMustExistIsNotMade) {
  EXPECT_FALSE(AppendLine(At("f"), "new", IfMissing::kFail));
  EXPECT_FALSE(RewriteInPlace(At("f"), "new"));
  EXPECT_FALSE(ReplaceThroughNewFile(At("f"), At("g"), "new"));
  EXPECT_FALSE(RemoveFile(At("f")));
  EXPECT_FALSE(RenameFile(At("f"), At("g")));
  EXPECT_FALSE(FileExists(At("f")));
  EXPECT_EQ(folder_.Content(), Files());
}

// Three ways to give the file `name` new content.
std::vector<std::function<bool()>> Rewrites(const CString& path, const std::string& content) {
  return {[=] { return CreateFile(path, content); }, [=] { return RewriteInPlace(path, content); },
          [=] { return ReplaceThroughNewFile(path, path + ".new", content); }};
}

TEST_F(LineWriterTest, NewContentTakesOverWhatTheFileWas) {
  for (const auto& rewrite : Rewrites(At("link"), "new")) {
    folder_.Lay({{"file", "old"}});
    std::filesystem::create_directory_symlink(".", folder_.Path() / "here");
    std::filesystem::create_symlink("here/file", folder_.Path() / "link");
    ASSERT_EQ(chmod(At("file"), 0604), 0);
    if (geteuid() == 0) {
      ASSERT_EQ(chown(At("file"), 1234, 2345), 0);
    }
    const bool extended = setxattr(At("file"), "user.x", "1", 1, 0) == 0;
    struct stat before {};
    struct stat after {};
    ASSERT_EQ(stat(At("file"), &before), 0);
    EXPECT_TRUE(rewrite());
    EXPECT_TRUE(is_symlink(folder_.Path() / "link"));
    EXPECT_EQ(folder_.Read("file"), "new");
    ASSERT_EQ(stat(At("file"), &after), 0);
    EXPECT_NE(before.st_ino, after.st_ino) << "it was not replaced";
    EXPECT_EQ(before.st_mode, after.st_mode);
    EXPECT_EQ(before.st_uid, after.st_uid);
    EXPECT_EQ(before.st_gid, after.st_gid);
    char value = '\0';
    EXPECT_TRUE(!extended || getxattr(At("file"), "user.x", &value, 1) == 1);
  }
}

TEST_F(LineWriterTest, AllNamesOfAFileShowItsNewContent) {
  for (const auto& rewrite : Rewrites(At("one"), "new")) {
    folder_.Lay({{"one", "old and long"}});
    create_hard_link(folder_.Path() / "one", folder_.Path() / "two");
    EXPECT_TRUE(rewrite());
    EXPECT_EQ(folder_.Content(), (Files{{"one", "new"}, {"two", "new"}}));
  }
}

TEST_F(LineWriterTest, CreatesWhatASymbolicLinkLeadsTo) {
  const std::function<bool()> kWays[] = {
      [&] { return CreateFile(At("link"), "new\r\n"); },
      [&] { return AppendLine(At("link"), "new", IfMissing::kCreate); }};
  for (const auto& create : kWays) {
    folder_.Lay({});
    std::filesystem::create_symlink("second", folder_.Path() / "link");
    std::filesystem::create_symlink(folder_.PathOf("file"), folder_.Path() / "second");
    EXPECT_TRUE(create());
    const Files expected{{"file", "new\r\n"}, {"link", "new\r\n"}, {"second", "new\r\n"}};
    EXPECT_EQ(folder_.Content(), expected);
    EXPECT_TRUE(is_symlink(folder_.Path() / "second"));
  }
}

// One process adds lines, the other's writes fail when they are half done.
TEST_F(LineWriterTest, TakingALineBackCutsNoOtherOff) {
  constexpr int kLines = 2000;
  const auto append = [&](const std::string& line) {
    return AppendLine(At("f"), line.c_str(), IfMissing::kCreate);
  };
  folder_.Lay({{"f", ""}});
  const Child child([&] {
    int added = 0;
    for (int i = 0; i < kLines; ++i) added += append(std::to_string(i)) ? 1 : 0;
    return added == kLines ? 0 : 1;
  });
  FaultyFileSystem counter;
  {
    const ScopedFileSystem scope(counter);
    EXPECT_TRUE(append("0"));
  }
  bool any = false;
  for (int i = 0; i < kLines; ++i) {
    FaultyFileSystem files(counter.calls());  // the last call is that which syncs
    const ScopedFileSystem scope(files);
    any = append("half a line") || any;
  }
  EXPECT_EQ(child.Status(), 0);
  EXPECT_FALSE(any);
  std::size_t size = 3;
  for (int i = 0; i < kLines; ++i) size += std::to_string(i).size() + 2;
  const std::string found = folder_.Read("f").value_or("");
  EXPECT_EQ(found.size(), size);
  EXPECT_EQ(found.find("half"), std::string::npos);
}

// Whoever reads meanwhile finds one content or the other, and no writer spoils what another writes.
TEST_F(LineWriterTest, TwoProcessesReplaceOneFile) {
  const auto write = [&](char letter) {
    int written = 0;
    const std::string content(5000, letter);
    for (int i = 0; i < 300; ++i) {
      written += CreateFile(At("f"), content) ? 1 : 0;
      const std::string found = folder_.Read("f").value_or("");
      const bool is_whole = found.size() == 5000 && found.find_first_not_of(found[0]) > 5000;
      if (!is_whole) return 0;
    }
    return written;
  };
  const Child child([&] { return write('b') > 0 ? 0 : 1; });
  EXPECT_GT(write('a'), 0);
  EXPECT_EQ(child.Status(), 0);
  EXPECT_EQ(folder_.Content().size(), 1u);
}

// The system itself refuses to let a file grow, as it does on a full disk, and would end the
// process.
TEST_F(LineWriterTest, PutsFilesBackWhenTheSystemStopsAWrite) {
  const std::string old(900, 'o');
  folder_.Lay({{"append", old}, {"rewrite", old}, {"replace", old}});
  const Child child([&] {
    const rlimit limit{1000, 1000};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return 1;
    const std::string more(2000, 'n');
    const bool any = AppendLine(At("append"), more.c_str(), IfMissing::kFail) ||
                     RewriteInPlace(At("rewrite"), more) || CreateFile(At("create"), more) ||
                     ReplaceThroughNewFile(At("replace"), At("new"), more);
    sigset_t signals;
    sigpending(&signals);
    if (sigismember(&signals, SIGXFSZ) == 1) return 3;
    sigprocmask(SIG_BLOCK, nullptr, &signals);
    if (sigismember(&signals, SIGXFSZ) == 1) return 4;
    return any ? 2 : 0;
  });
  EXPECT_EQ(child.Status(), 0);
  EXPECT_EQ(folder_.Content(), (Files{{"append", old}, {"rewrite", old}, {"replace", old}}));
}

// The superuser may write anywhere, so the writing is done by a process of a user who may not.
TEST_F(LineWriterTest, WhatMayOnlyBeReadStaysAsItIs) {
  const Files before{{"append", "old\r\n"}, {"rewrite", "old\r\n"}, {"replace", "old\r\n"}};
  folder_.Lay(before);
  for (const auto& [name, bytes] : before) ASSERT_EQ(chmod(At(name), 0444), 0);
  folder_.Write("writable", "old and long\r\n");
  ASSERT_EQ(chmod(At("writable"), 0666), 0);
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0555), 0);

  const Child child([&] {
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && setuid(kNobody) != 0) return 1;
    const bool any = AppendLine(At("append"), "new", IfMissing::kFail) ||
                     AppendLine(At("missing"), "new", IfMissing::kCreate) ||
                     RewriteInPlace(At("rewrite"), "new") || CreateFile(At("create"), "new") ||
                     ReplaceThroughNewFile(At("replace"), At("new"), "new");
    // There can be no second file.
    if (!RewriteInPlace(At("writable"), "newer")) return 4;
    if (!FileChanges(At("writable")).Commit("new")) return 5;
    FileChanges several(At("writable"));
    several.Remove(At("append"));
    if (several.Commit("x")) return 6;
    return any ? 2 : LineReader(At("append"), 99).IsOpen() ? 0 : 3;
  });
  EXPECT_EQ(child.Status(), 0);
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0777), 0);
  EXPECT_EQ(folder_.Read("writable"), "new");
  std::filesystem::remove(folder_.Path() / "writable");
  EXPECT_EQ(folder_.Content(), before);
}

}  // namespace
}  // namespace orreryui
