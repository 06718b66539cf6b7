#include "frame/choose_picture.h"

#include <gmock/gmock.h>

#include <iostream>

#include "tests/support/play.h"

namespace orreryui {
namespace {

namespace fs = std::filesystem;

constexpr char kBySibling[] = R"(C:\A.BMP for ; C:\A.BMP for ; )";
constexpr char kByOwn[] = R"(\own\a.jpg for /Maps/old.bmp, previewed;  for , previewed; 5 1 )";

// Tells what is chosen twice, and ends: a library stays in the process that has loaded it.
[[noreturn]] void ChooseTwice(bool by_sibling) {
  ScriptFrontEnd script;
  const ScopedFrontEnd scope(&script);
  if (!by_sibling) script.Beeps().ChoosesFile("/Own/A.JPG").Beeps().ChoosesFile(std::nullopt);
  for (const char* current : {"C:\\Maps\\old.bmp", ""}) {
    std::cerr << ChoosePicture(current).operator const char*() << " for ";
    const FileChooserRequest& request = script.LastFileRequest();
    std::cerr << request.start_name << (request.preview_pictures ? ", previewed; " : "; ");
  }
  for (const FileFilter& filter : script.LastFileRequest().filters) {
    std::cerr << filter.patterns.size() << ' ';
  }
  std::cerr << script.Failures();
  std::exit(0);
}

TEST(ChoosePicture, IsUpToTheSiblingLibraryWhereThatCanDoIt) {
  GTEST_FLAG_SET(death_test_style, "fast");
  const fs::path folder = ORRERYUI_LIBRARY_FOLDER;
  std::ofstream(folder / "text") << "this isn't a library";
  const std::pair<const char*, const char*> cases[] = {{"libchoosing_pictures.so", kBySibling},
                                                       {"liblacking_pictures.so", kByOwn},
                                                       {"libthrowing_pictures.so", kByOwn},
                                                       {"text", kByOwn},
                                                       {"missing", kByOwn}};
  for (const auto& [library, told] : cases) {
    fs::remove(folder / "libkobaltfx.so");
    fs::create_symlink(library, folder / "libkobaltfx.so");
    EXPECT_EXIT(ChooseTwice(told == kBySibling), testing::ExitedWithCode(0), testing::StrEq(told))
        << library;
  }
}

}  // namespace
}  // namespace orreryui
