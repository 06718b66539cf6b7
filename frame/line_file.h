// The text files of the dialogs: lines in code page 932, ended by CR LF when they are written. This
// is the only way in which the dialogs read and change files.
//
// Paths are given as the library's own (platform/system/path.h), in most cases a folder argument
// with a name glued to it. No file stays open behind a call or a reader's life, and nothing is
// reported to the user.
//
// All that changes a file returns true once the change is on the disk. False means that the file
// is what it was before: what was half written has been taken back.
//
// New content becomes visible at one moment: a second file, hidden beside the first, takes its
// place with its owner, its mode and all that else is said of who may use it, and what symbolic
// links lead to is replaced, not they. If the process ends meanwhile, the next writer removes the
// second file. Only a file that has several names, whose owner can't be kept or whose folder can't
// be written is overwritten where it lies.
//
// Writers of this library lock the file meanwhile. One that another process keeps locked for more
// than about a second can't be changed.
#ifndef ORRERYUI_FRAME_LINE_FILE_H_
#define ORRERYUI_FRAME_LINE_FILE_H_

#include <orreryui/cstring.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "platform/system/file_system.h"

namespace orreryui {

// Reads a file once, from its start, line by line:
//
//   LineReader reader(folder + "BINDER.DAT", 99);
//   CString line;
//   while (reader.ReadLine(line)) ...
//
// LF ends a line, and a CR right before it goes with it. A line is `limit` - 1 bytes at most; the
// rest of a longer one comes as the next line, and one that just fits comes once. A NUL ends the
// text of its line: what stands behind it in the line is dropped.
//
// The last line needs no LF. If it has one, an empty line comes behind it as the last of all. A
// file that is empty, is missing or can't be opened has no lines. Only of one that is missing or
// was read to its end is it known what it holds; no other may be rewritten from what was read.
//
// The reader holds a block of the file in memory and never a whole line that is longer.
class LineReader {
 public:
  // `limit` counts the NUL that a fixed buffer would need, and is at least 2.
  LineReader(const char* path, std::size_t limit);

  // False at the end of the file; `line` is then empty. The view holds until the next call.
  bool ReadLine(std::string_view& line);
  bool ReadLine(CString& line);

  // The bytes of the file that the last line was taken from, its line end among them. The view
  // holds until the next call.
  std::string_view Bytes() const { return bytes_; }

  // What ReadLine hasn't given yet, byte for byte, so that a rewrite can carry it through.
  std::string ReadRest();

  // Whether the file was opened.
  bool IsOpen() const { return file_ != nullptr; }

  // Whether there is no such file. One that couldn't be opened for another reason isn't missing:
  // it may hold lines.
  bool IsMissing() const { return missing_; }

  // Whether reading broke off before the end. The lines so far are then not the whole file, and
  // rewriting it from them would lose the others.
  bool Failed() const { return failed_; }

  // Whether the lines so far, to the end, are known to be all that there is.
  bool IsComplete() const { return missing_ || (IsOpen() && !failed_); }

 private:
  const char* FindLineFeed();
  bool Fill();

  std::unique_ptr<File> file_;
  bool missing_;
  std::size_t longest_;  // bytes that a line may have
  std::size_t block_size_;
  std::unique_ptr<char[]> block_;
  std::size_t begin_ = 0;  // the bytes of block_ from begin_ to end_ are unread
  std::size_t end_ = 0;
  bool holds_nul_ = false;  // there is a NUL in block_
  bool at_end_ = false;     // the file has no bytes behind block_
  bool failed_ = false;
  bool empty_line_due_ = false;  // the last line that was read had its LF
  std::string_view bytes_;       // of the last line, in block_
};

// Writes a file whole. One that exists gets the new content; its folder must exist.
bool CreateFile(const char* path, std::string_view content);

enum class IfMissing { kFail, kCreate };

// Adds `line` and CR LF at the end of the file, behind what others may have added meanwhile. If its
// last line lacks the line end, it gets one first, so that two lines never become one.
bool AppendLine(const char* path, const char* line, IfMissing if_missing);

// Gives a file that must exist new content.
bool RewriteInPlace(const char* path, std::string_view content);

// The same, where the second file has the name of `new_path`, which is no other file's.
bool ReplaceThroughNewFile(const char* path, const char* new_path, std::string_view content);

// Whether there is a file, not a folder, of this name that can be opened for reading.
bool FileExists(const char* path);

// True once the file is gone, though a power cut at that moment may bring it back.
bool RemoveFile(const char* path);

// Both paths lie in one folder. False if the name `to` is taken: no file is overwritten.
bool RenameFile(const char* from, const char* to);

}  // namespace orreryui

#endif  // ORRERYUI_FRAME_LINE_FILE_H_
