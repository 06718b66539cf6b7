// A folder of its own for a test, with the bytes of its files.
#ifndef ORRERYUI_TESTS_SUPPORT_TEST_FOLDER_H_
#define ORRERYUI_TESTS_SUPPORT_TEST_FOLDER_H_

#include <orreryui/cstring.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <string>

namespace orreryui {

using Files = std::map<std::string, std::string>;  // names and bytes

class TestFolder {
 public:
  TestFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "orreryui-XXXXXX").string();
    if (mkdtemp(name.data())) path_ = name;
  }
  ~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::string PathOf(const std::string& name) const { return (path_ / name).string(); }
  // As an operation wants it, with the separator behind it.
  CString Argument() const { return (path_.string() + "/").c_str(); }

  // Below the folder, if the name says so.
  void Write(const std::string& name, const std::string& bytes) const {
    create_directories((path_ / name).parent_path());
    std::ofstream(path_ / name, std::ios::binary) << bytes;
  }
  // A program that does these commands. Returns its path.
  std::string WriteProgram(const std::string& name, const std::string& commands) const {
    Write(name, "#!/bin/sh\n" + commands + "\n");
    permissions(path_ / name, std::filesystem::perms::owner_all);
    return PathOf(name);
  }
  // Nothing if there is no such file.
  std::optional<std::string> Read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
  }

  // Replaces all that is in the folder.
  void Lay(const Files& files) const {
    for (const auto& entry : std::filesystem::directory_iterator(path_)) remove_all(entry.path());
    for (const auto& [name, bytes] : files) Write(name, bytes);
  }
  Files Content() const {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      const std::string name = entry.path().filename().string();
      files[name] = Read(name).value_or("");
    }
    return files;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace orreryui

#endif  // ORRERYUI_TESTS_SUPPORT_TEST_FOLDER_H_
