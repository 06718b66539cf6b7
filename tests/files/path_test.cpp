#include "platform/system/path.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/strings/japanese_literal.h"
#include "platform/system/file_system.h"
#include "tests/support/faulty_file_system.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

class PathTest : public testing::Test {
 protected:
  // Looks for `path`, in code page 932, below the folder and gives back what follows it.
  std::string Find(const std::string& path) const {
    const std::string root = folder_.Path().string();
    const std::string native = NativePath("C:" + root + "\\" + path);
    EXPECT_EQ(native.substr(0, root.size() + 1), root + "/");
    return native.substr(root.size() + 1);
  }
  void MakeFolder(const std::string& name) const {
    std::filesystem::create_directories(folder_.Path() / name);
  }
  TestFolder folder_;
};

TEST(NativePathTest, SeparatorsAndDrives) {
  const struct {
    const char* path;
    const char* native;
  } kCases[] = {
      {"", ""},
      {"\\", "/"},
      {"C:\\", "/"},
      {"C:\\no such folder\\a.dat", "/no such folder/a.dat"},
      {"z:/no such folder\\a.dat", "/no such folder/a.dat"},
      {"no such folder\\a.dat", "no such folder/a.dat"},
      {"C:no such file", "no such file"},
      {"\\\\no such host\\\\x\\", "/no such host/x"},
      {"no:such\\x", "no:such/x"},
  };
  for (const auto& c : kCases) EXPECT_EQ(NativePath(c.path), c.native) << c.path;
}

TEST(NativePathTest, ATrailByteDoesNotSeparate) {
  // 表 is 955C, ポ is 837C, ソ is 835C.
  EXPECT_EQ(NativePath("no such\\\x95\x5C\\\x83\x5C\x83\x7C.txt"), "no such/表/ソポ.txt");
  // A lead byte without its second half swallows nothing.
  EXPECT_EQ(NativePath("no such\\\x95/x"), "no such/\x95/x");
}

TEST_F(PathTest, FindsNamesWithoutRegardToCase) {
  MakeFolder("Source/Photos");
  folder_.Write("Source/Photos/Ｐｈｏｔｏ1.JPG", "");
  const std::string expected = "Source/Photos/Ｐｈｏｔｏ1.JPG";
  EXPECT_EQ(Find("Source\\Photos\\Ｐｈｏｔｏ1.JPG"_sj), expected);
  EXPECT_EQ(Find("source\\PHOTOS\\ｐＨＯＴＯ1.jpg"_sj), expected);
  EXPECT_NE(Find("source\\photos\\photo1.jpg"_sj), expected) << "widths differ";
}

TEST_F(PathTest, PrefersTheSpellingGivenThenTheFirstInByteOrder) {
  for (const char* name : {"list.dat", "LIST.DAT", "List.Dat"}) folder_.Write(name, "");
  EXPECT_EQ(Find("List.Dat"), "List.Dat");
  EXPECT_EQ(Find("list.dat"), "list.dat");
  EXPECT_EQ(Find("lISt.dat"), "LIST.DAT");
}

TEST_F(PathTest, ListsAFolderOnceInTheLifeOfAChange) {
  folder_.Write("List.Dat", "");
  FaultyFileSystem files;
  const ScopedFileSystem scope(files);
  {
    const ListedOnce once;
    for (const char* name : {"LIST.DAT", "list.dat"}) EXPECT_EQ(Find(name), "List.Dat");
    for (int i = 0; i < 9; ++i) EXPECT_EQ(Find("X" + std::to_string(i)), "X" + std::to_string(i));
    std::filesystem::rename(folder_.Path() / "List.Dat", folder_.Path() / "New.Dat");
    EXPECT_EQ(Find("LIST.DAT"), "LIST.DAT") << "it has gone";
    EXPECT_EQ(Find("New.Dat"), "New.Dat");
    EXPECT_EQ(files.listings(), 1);
  }
  EXPECT_EQ(Find("NEW.DAT"), "New.Dat");
}

TEST_F(PathTest, FindsNamesThatAreRawBytes) {
  const std::string name = "地図.DAT"_sj;
  folder_.Write(name, "");
  EXPECT_EQ(Find(name), name);
  EXPECT_EQ(Find("地図.dat"_sj), name) << "in another case";
  folder_.Write("地図.DAT", "");
  EXPECT_EQ(Find(name), "地図.DAT") << "UTF-8 comes first";
}

TEST_F(PathTest, FindsNamesOfOtherSystems) {
  folder_.Write("か\u3099くかく.txt", "");  // decomposed
  folder_.Write("1\u301C2.txt", "");        // a wave dash
  EXPECT_EQ(Find("がくかく.txt"_sj), "か\u3099くかく.txt");
  EXPECT_EQ(Find("1～2.txt"_sj), "1\u301C2.txt");
}

TEST_F(PathTest, SpellsWhatIsMissingAsGivenBelowTheFoldersFound) {
  MakeFolder("Data");
  EXPECT_EQ(Find("DATA\\ルートA\\New.txt"_sj), "Data/ルートA/New.txt");
  EXPECT_EQ(Find("data\\\x85\xFC.txt"), "Data/\x85\xFC.txt") << "bytes that make no character";
}

TEST_F(PathTest, TheWayBackLeadsToTheSameFile) {
  for (const std::string name : {"表ソ.txt", "a b.TXT", "か\u3099.txt", "1\u301C2.txt"}) {
    folder_.Write(name, "");
    const auto path = PathFromNative((folder_.Path() / name).string());
    ASSERT_TRUE(path) << name;
    EXPECT_EQ(path->find('/'), std::string::npos);
    EXPECT_EQ(NativePath(*path), (folder_.Path() / name).string());
  }
  EXPECT_EQ(RefusedInPath("/tmp/鎌倉.txt"), "");
  EXPECT_EQ(RefusedInPath("/tmp/a😀.txt"), "😀");
  EXPECT_EQ(RefusedInPath("/tmp/a\\b.txt"), "\\");
  EXPECT_EQ(RefusedInPath("/tmp/a|ポ.txt"), "|");
  EXPECT_FALSE(PathFromNative("/tmp/😀.txt"));
  EXPECT_FALSE(PathFromNative("/tmp/a\\b.txt"));
  EXPECT_FALSE(PathFromNative("/tmp/\xFF.txt"));
}

TEST(LeadsOutTest, SeesEveryWayOutOfAFolder) {
  for (const char* path :
       {"..", "../x", "..\\x", "a/b\\../../x", "a\\..", "/x", "\\x", "C:x", "z:/x"}) {
    EXPECT_TRUE(LeadsOut(path)) << path;
  }
  // The second byte of a character separates nothing.
  for (const char* path : {"", ".", "x", "a/b.plt", "...", "..x/x..", "\x95\\..", "12:x"}) {
    EXPECT_FALSE(LeadsOut(path)) << path;
  }
}

}  // namespace
}  // namespace orreryui
