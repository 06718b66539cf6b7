// What an album file holds after each write, and which lines a reader gets.
#include "points/album_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/strings/japanese_literal.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kAlbum[] = "a.alb";

std::string Lines(int first, int last) {
  std::string lines;
  for (int i = first; i <= last; ++i) lines += "p" + std::to_string(i) + " 1 2 i f.txt\r\n";
  return lines;
}

class AlbumFileTest : public testing::Test {
 protected:
  CString Path() const { return folder.Argument() + kAlbum; }

  // The lines of a file with these bytes.
  std::vector<std::string> LinesOf(const std::string& bytes) const {
    folder.Write(kAlbum, bytes);
    std::vector<std::string> lines;
    for (const CString& line : ReadAlbumLines(Path())) lines.emplace_back(line);
    return lines;
  }

  TestFolder folder;
};

TEST_F(AlbumFileTest, AFirstLineStartsTheFileAndTheOthersFollow) {
  folder.Write(kAlbum, Lines(1, 200));
  const DataLine both = {"Mt|表"_sj, "34.5000", "135.0000", "社 寺"_sj, "C:\\Text.txt", "P.JPG"};
  const DataLine picture = {"p", "1", "2", "", "", "p.gif"};
  const DataLine text = {"a\r\nb", "", "", "i", "t 1.txt", ""};
  EXPECT_TRUE(AppendAlbumLine(Path(), true, both));
  EXPECT_EQ(folder.Read(kAlbum),
            std::string("Mt|表 34.5000 135.0000 社 寺 P.JPG C:\\Text.txt\r\n"_sj));
  EXPECT_TRUE(AppendAlbumLine(Path(), false, picture));
  EXPECT_TRUE(AppendAlbumLine(Path(), false, text));
  EXPECT_EQ(folder.Read(kAlbum), std::string("Mt|表 34.5000 135.0000 社 寺 P.JPG C:\\Text.txt\r\n"
                                             "p 1 2  p.gif\r\n"
                                             "a\r\nb   i t 1.txt\r\n"_sj));
}

TEST_F(AlbumFileTest, OnlyTheFirstLineMakesAFile) {
  const DataLine data = {"p", "1", "2", "i", "t.txt", ""};
  EXPECT_FALSE(AppendAlbumLine(Path(), false, data));
  EXPECT_EQ(folder.Read(kAlbum), std::nullopt);
  EXPECT_FALSE(AppendAlbumLine(folder.Argument() + "none\\a.alb", true, data));
  EXPECT_FALSE(AppendAlbumLine("", true, data));
  EXPECT_FALSE(CreateEmptyAlbum(folder.Argument()));
}

TEST_F(AlbumFileTest, ALineThatNoReaderFindsWholeIsNotWritten) {
  for (const bool first : {true, false}) {
    folder.Write(kAlbum, "old");
    const CString rest(std::string(199 - 9, 'x').c_str());  // behind "p 1 2 i "
    EXPECT_FALSE(AppendAlbumLine(Path(), first, {";p", "1", "2", "i", "t.txt", ""}));
    EXPECT_FALSE(AppendAlbumLine(Path(), first, {"p", "1", "2", "i", rest + "xy", ""}));
    EXPECT_FALSE(AppendAlbumLine(Path(), first, {"p", "1", "2", "i", "b", rest + "x"}));
    EXPECT_EQ(folder.Read(kAlbum), "old");
    EXPECT_TRUE(AppendAlbumLine(Path(), first, {"p", "1", "2", "i", rest + "x", ""}));
    EXPECT_EQ(ReadAlbumLines(Path()).back(), "p 1 2 i " + rest + "x");
  }
}

TEST_F(AlbumFileTest, LinesWithoutDataAreSkippedAndLongOnesComeInPieces) {
  const std::string full(199, 'x');
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"", {}},
      {"a\r\n\r\n;c\nMt 1 2 i f\r\nmt 1 2 i f\n \nb", {"a", "mt 1 2 i f", " ", "b"}},
      {"a\r\n9990\r\n 999\r\n999\r\nb\r\n", {"a", "9990", " 999"}},
      {full + "y z\r\nb", {full, "y z", "b"}},
      {full + ";y\r\nb", {full, "b"}},
      {full + "999\r\nb", {full}},
      // The cut may go through a character.
      {full.substr(1) + "\x93\x8C|", {full.substr(1) + "\x93", "\x8C|"}},
  };
  for (const auto& [bytes, lines] : cases) EXPECT_EQ(LinesOf(bytes), lines) << bytes;
  EXPECT_THAT(ReadAlbumLines(folder.Argument() + "none"), IsEmpty());
  EXPECT_THAT(ReadAlbumLines(folder.Argument()), IsEmpty());
}

TEST_F(AlbumFileTest, NinetyNineLinesAreRead) {
  EXPECT_EQ(LinesOf(Lines(1, 98)).size(), 98u);
  for (const int count : {99, 100, 5000}) {
    EXPECT_EQ(LinesOf(Lines(1, count)).back(), "p99 1 2 i f.txt") << count;
  }
  const auto lines = LinesOf("\r\n" + Lines(1, 50) + ";\r\n\r\nM\r\n" + Lines(51, 100));
  EXPECT_EQ(lines.size(), 99u) << "a line without data counts for none";
}

}  // namespace
}  // namespace orreryui
