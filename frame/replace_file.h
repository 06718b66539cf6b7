// How the content of a file changes at one moment: a second file is written whole and takes its
// place with one rename. Writers of this library keep out of each other's way by the files' locks.
//
// Paths are the file system's own, and not those of symbolic links. Nothing waits for another
// process's lock for longer than about a second.
#ifndef ORRERYUI_FRAME_REPLACE_FILE_H_
#define ORRERYUI_FRAME_REPLACE_FILE_H_

#include <memory>
#include <string>
#include <string_view>

#include "platform/system/file_system.h"

namespace orreryui {

// A name beside `path` that only this library uses: hidden, and the same each time, so that what a
// process left behind when it died is found.
std::string NameBeside(const std::string& path, std::string_view purpose);
inline std::string SecondName(const std::string& path) { return NameBeside(path, "new"); }

// Removes a file of that name that a process left behind when it died: nobody has locked it. False
// if one is still there.
bool RemoveLeftBehind(const std::string& path);

// Opens a file and takes its lock. Null if there is none, it can't be opened or others keep it.
std::unique_ptr<File> OpenLocked(const std::string& path, OpenMode mode);

// Creates a file, locked. One of that name that was left behind goes.
std::unique_ptr<File> CreateLocked(const std::string& path, OpenMode mode);

// Makes a second file, still empty, like the file that it is to replace: by its owner, its mode,
// who may use it. False if that can't be done, or if the old one has other names that would go on
// leading to it.
bool MakeLike(File& second, File& file);

// Gives an open file new content where it lies. If that fails it is given its old content again.
bool OverwriteOrRestore(File& file, std::string_view content);

// Gives a file that exists new content, through the file `second` beside it. The new file has the
// old one's attributes; where that can't be done, or there can be no second file, or the file has
// several names, it is overwritten where it lies.
bool ReplaceFile(const std::string& path, const std::string& second, std::string_view content);

// Makes a file that must not exist.
bool CreateWhole(const std::string& path, std::string_view content);

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_REPLACE_FILE_H_
