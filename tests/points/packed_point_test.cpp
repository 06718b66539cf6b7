// Data lines against packed points and their fields, in both directions.
#include "points/packed_point.h"

#include <gtest/gtest.h>

#include "platform/strings/japanese_literal.h"

namespace orreryui {
namespace {

struct Case {
  const char* line;
  const char* packed;
  DataLine data;  // place, latitude, longitude, item, text file, picture
};

TEST(PackedPointTest, LinesAreTakenApartAtTheirBlanks) {
  const Case cases[] = {
      {"p 1 2 i a.jpg a.txt", "p#i@a.jpg$1$2$a.txt", {"p", "1", "2", "i", "a.txt", "a.jpg"}},
      {"p 1 2 i a.jpg", "p#i@a.jpg$1$2", {"p", "1", "2", "i", "", "a.jpg"}},
      {"p 1 2 i a.txt", "p#i@a.txt$1$2", {"p", "1", "2", "i", "a.txt", ""}},
      {"p 1 2 i a.txt a.jpg", "p#i@a.txt$1$2$a.jpg", {"p", "1", "2", "i", "a.txt", "a.jpg"}},
      {"p 1 2 i a.jpg b.jpg", "p#i@a.jpg$1$2$b.jpg", {"p", "1", "2", "i", "b.jpg", "a.jpg"}},
      {"p 1 2  a.txt", "p#@a.txt$1$2", {"p", "1", "2", "", "a.txt", ""}},
      // Blanks in a field and behind the first file.
      {"p q 1 2 i a.txt", "p#2@i$q$1$a.txt", {"p", "q", "1", "2", "i", "a.txt"}},
      {"p 1 2 i a.jpg b c.txt", "p#i@a.jpg$1$2$b c.txt", {"p", "1", "2", "i", "b c.txt", "a.jpg"}},
      {"p 1 2 i a.jpg ", "p#i@a.jpg$1$2$", {"p", "1", "2", "i", "", "a.jpg"}},
      {"p 1 2 i  a.txt", "p#i@$1$2$a.txt", {"p", "1", "2", "i", "", "a.txt"}},
      // Too few fields.
      {"p 1 2 a.txt", "p#@a.txt$1$2", {"p", "1", "2", "", "a.txt", ""}},
      {"p", "#@p$$", {"", "", "", "", "p", ""}},
      {"", "#@$$", {}},
      // Separators of the packed form.
      {"p#q 1 2 i a.txt", "p#q#i@a.txt$1$2", {"p", "1", "2", "q#i", "a.txt", ""}},
      {"p 1 2 i@ b.txt", "p#i@@b.txt$1$2", {"p", "1", "2", "i", "@b.txt", ""}},
      {"p 1$ 2 i a.txt", "p#i@a.txt$1$$2", {"p", "1", "", "i", "a.txt", "2"}},
      // Second bytes that are those of @, |, and capital and small letters.
      {"ァー　表 1 2 ポァ ァａ.txt"_sj,
       "ァー　表#ポァ@ァａ.txt$1$2"_sj,
       {"ァー　表"_sj, "1", "2", "ポァ"_sj, "ァａ.txt"_sj, ""}},
      // A lead byte alone takes no blank with it, but an @ that follows is its second byte.
      {"p\x81 1 2 i a.txt", "p\x81#i@a.txt$1$2", {"p\x81", "1", "2", "i", "a.txt", ""}},
      {"p 1 2 i\x81 a.txt", "p#i\x81@a.txt$1$2", {"", "1", "2", "", "p#i\x81@a.txt", ""}},
  };
  for (const auto& [line, packed, data] : cases) {
    SCOPED_TRACE(line);
    EXPECT_STREQ(PackPointLine(line), packed);
    const DataLine found = UnpackPoint(packed);
    EXPECT_STREQ(found.place, data.place);
    EXPECT_STREQ(found.latitude, data.latitude);
    EXPECT_STREQ(found.longitude, data.longitude);
    EXPECT_STREQ(found.item, data.item);
    EXPECT_STREQ(found.text_file, data.text_file);
    EXPECT_STREQ(found.picture, data.picture);
  }
}

TEST(PackedPointTest, APictureIsToldByASuffixAnywhereInTheFirstName) {
  for (const char* name : {"PHOTO.JPG", "a.Bmp", "notes.pic.txt", "x.gif\\a", "a.pcd.1"}) {
    EXPECT_STREQ(UnpackPoint(CString("p#i@") + name + "$1$2").picture, name);
  }
  for (const char* name : {"a.txt", "bmp", "a.png", "a.jp"}) {
    const DataLine data = UnpackPoint(CString("p#i@") + name + "$1$2$second.jpg");
    EXPECT_STREQ(data.text_file, name);
    EXPECT_STREQ(data.picture, "second.jpg");
  }
}

}  // namespace
}  // namespace orreryui
