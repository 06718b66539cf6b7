#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <string>
#include <vector>

#include "frame/line_file.h"
#include "tests/support/faulty_file_system.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

using Lines = std::vector<std::string>;

class LineReaderTest : public testing::Test {
 protected:
  Lines Read(const std::string& content, std::size_t limit) {
    folder_.Write("file", content);
    return ReadFile("file", limit);
  }
  Lines ReadFile(const std::string& name, std::size_t limit) {
    LineReader reader((folder_.Path() / name).c_str(), limit);
    Lines lines;
    std::string_view line;
    while (reader.ReadLine(line)) lines.emplace_back(line);
    EXPECT_TRUE(line.empty());
    EXPECT_FALSE(reader.ReadLine(line)) << "the end stays the end";
    return lines;
  }
  TestFolder folder_;
};

TEST_F(LineReaderTest, EndsLinesAtLfWithOrWithoutCr) {
  const struct {
    std::string content;
    Lines lines;
  } kCases[] = {
      {"", {}},
      {"a", {"a"}},
      {"a\n", {"a", ""}},
      {"a\r\nb\nc", {"a", "b", "c"}},
      {"\n", {"", ""}},
      {"12345", {"12345"}},
      {"1234567890", {"12345", "67890"}},
      {"12345\r\n", {"12345", ""}},
      {"12345\r", {"12345", "\r"}},
      {"\r\n\r\nx", {"", "", "x"}},
      {"a\rb\r\r\nc\r", {"a\rb\r", "c\r"}},
      {std::string("ab\0cd\r\n\0\ne", 10), {"ab", "", "e"}},
  };
  for (const auto& c : kCases) EXPECT_EQ(Read(c.content, 6), c.lines) << c.content;
}

TEST_F(LineReaderTest, CutsAtTheLimitAndNowhereElse) {
  for (const std::size_t limit : {2u, 99u, 150u, 200u, 3199u}) {
    const std::size_t most = limit - 1;
    for (const std::string end : {"\n", "\r\n"}) {
      for (const std::size_t length :
           {most - 1, most, most + 1, 2 * most - 1, 2 * most, 2 * most + 1}) {
        const std::string text(length, 'x');
        Lines expected;
        for (std::size_t i = 0; i < length; i += most) expected.push_back(text.substr(i, most));
        if (length == 0) expected.push_back("");
        expected.push_back("n");
        ASSERT_EQ(Read(text + end + "n", limit), expected) << limit << " " << length;
      }
    }
  }
}

TEST_F(LineReaderTest, LinesAreTheSameHoweverTheBlocksFall) {
  std::string content;
  for (int i = 0; i < 400; ++i)
    content += std::string(static_cast<std::size_t>(i % 37), 'x') + "\r\n";
  const Lines expected = Read(content, 30);
  for (const std::size_t piece : {1u, 2u, 31u, 64u}) {
    FaultyFileSystem files;
    files.longest_read = piece;
    const ScopedFileSystem scope(files);
    EXPECT_EQ(Read(content, 30), expected) << piece;
  }
}

TEST_F(LineReaderTest, TellsAMissingFileFromOneThatCannotBeOpened) {
  const auto is_missing = [this](const std::string& name) {
    const LineReader reader((folder_.Path() / name).c_str(), 99);
    EXPECT_FALSE(reader.IsOpen()) << name;
    return reader.IsMissing();
  };
  folder_.Write("file", "line");
  std::filesystem::create_symlink("nowhere", folder_.Path() / "link");
  std::filesystem::create_symlink("loop", folder_.Path() / "loop");
  for (const char* name : {"missing", "none/f", "file/f", "link"}) {
    EXPECT_TRUE(is_missing(name)) << name;
  }
  for (const char* name : {".", "loop"}) EXPECT_FALSE(is_missing(name)) << name;
  EXPECT_FALSE(LineReader((folder_.Path() / "FILE").c_str(), 99).IsMissing());
  EXPECT_EQ(ReadFile("missing", 99), Lines());
  EXPECT_EQ(ReadFile(".", 99), Lines());

  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
  const rlimit none{0, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
  const bool same_case = is_missing("file");
  const bool other_case = is_missing("FILE");
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_FALSE(same_case);
  EXPECT_FALSE(other_case) << "the folder can't be read";
}

TEST_F(LineReaderTest, TellsABrokenReadFromTheEnd) {
  folder_.Write("file", std::string(100, 'x') + "\nlast");
  for (const std::size_t read : {101u, 103u}) {
    FaultyFileSystem files(3);  // the opening and a first read succeed
    files.longest_read = read;
    const ScopedFileSystem scope(files);
    LineReader reader((folder_.Path() / "file").c_str(), 200);
    CString line;
    EXPECT_TRUE(reader.ReadLine(line));
    EXPECT_FALSE(reader.Failed());
    EXPECT_FALSE(reader.ReadLine(line)) << "half a line is none";
    EXPECT_TRUE(reader.Failed());
    EXPECT_FALSE(reader.ReadLine(line));
  }
}

TEST_F(LineReaderTest, GivesTheRestByteForByte) {
  const std::string rest("; b\r\n\n\0c\nd", 11);
  folder_.Write("file", "a\r\n" + rest);
  LineReader reader((folder_.Path() / "file").c_str(), 99);
  CString line;
  ASSERT_TRUE(reader.ReadLine(line));
  EXPECT_STREQ(line, "a");
  EXPECT_EQ(reader.ReadRest(), rest);
  EXPECT_FALSE(reader.ReadLine(line));
  EXPECT_FALSE(reader.Failed());
}

}  // namespace
}  // namespace orreryui
