// The way between the paths that hosts, dialogs and data files use and those of the file system.
//
// A path of the library is written in the Windows manner, in code page 932: `\` and `/` both
// separate, unless the byte is the second half of a character, and a drive letter may stand in
// front. On the disk names are UTF-8, `/` separates and there are no drives.
#ifndef ORRERYUI_PLATFORM_SYSTEM_PATH_H_
#define ORRERYUI_PLATFORM_SYSTEM_PATH_H_

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orreryui {

// The path on the disk. A drive letter is dropped, and a relative path stays relative.
//
// Each name is looked for in the folder found so far: as it is spelled, in UTF-8; then with the
// bytes of the code page; then without regard to the case of ASCII and full-width letters, where
// of several names that match the first in byte order is taken. A name that isn't found at all is
// spelled as given, so that a file which is created stands below the folders that exist.
//
// The empty path stays empty; no file has that name.
std::string NativePath(std::string_view path);
inline std::string NativePath(const char* path) { return NativePath(std::string_view(path)); }

// The name, in UTF-8, that a file gets that is created under the last name of a path.
std::string NameToCreate(std::string_view path);

// While one lives, the functions of this page list a folder once at most, and remember its names.
// For the length of one change to files: a name that others add meanwhile is found as it is
// spelled, but may not be found in another case. One inside the life of another adds nothing.
class ListedOnce {
 public:
  ListedOnce();
  ~ListedOnce();
  ListedOnce(const ListedOnce&) = delete;
  ListedOnce& operator=(const ListedOnce&) = delete;

  using Names = std::shared_ptr<const std::vector<std::string>>;

  // What FileSystem::List says, or has said; null if it can't.
  static Names NamesIn(const std::string& folder);

 private:
  std::map<std::string, Names> listed_;
};

// True if NativePath finds nothing on the disk. False also if that can't be told, as when a folder
// can't be read at the moment.
bool IsMissing(std::string_view path);

// Whether something is known to have that name.
bool Exists(const char* path);

// Whether a path that is glued to a folder may lead out of it: one with `..` in it, or with a
// separator or a drive letter in front.
bool LeadsOut(const char* path);

// The way back, for a path that the file system or a file chooser gave: `\` separates in the
// result, and NativePath finds the file again. Nothing if the path has a character that the code
// page lacks, a backslash within a name, or a bar, which divides the fields of results.
std::optional<std::string> PathFromNative(const std::string& native);

// The characters of a native path that PathFromNative has no path for; empty if it has one.
std::string RefusedInPath(const std::string& native);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_SYSTEM_PATH_H_
