// Command lines as they were written for Windows: one text, in code page 932, that holds a program
// and its arguments.
#ifndef ORRERYUI_PLATFORM_SYSTEM_COMMAND_LINE_H_
#define ORRERYUI_PLATFORM_SYSTEM_COMMAND_LINE_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orreryui {

// A program to start, in the form that the system takes.
struct Command {
  std::string program;                 // its path
  std::vector<std::string> arguments;  // those behind the program's name
};

// Splits a command line. Nothing if it names no program that can be started.
//
// The program stands in front. In double quotes it may hold blanks; otherwise it reaches up to the
// first blank or tab at which what stands before it is a program, so that its path may hold blanks
// too. A name without a folder is looked for in the folders of PATH.
//
// An argument ends at a blank or tab outside double quotes, which are dropped. Backslashes are
// plain characters, except in front of a quote: there each two are one, and an odd one makes the
// quote a plain character.
//
// An unquoted path with blanks would fall into pieces, so the longest run of words that is the path
// of a file or folder is one argument, taken as it stands. Paths become those of the disk: of what
// exists, and of what has a backslash in it. A word that begins with `-` is never taken for a path,
// and everything that isn't one becomes UTF-8.
std::optional<Command> ParseCommandLine(std::string_view line);

}  // namespace orreryui

#endif  // ORRERYUI_PLATFORM_SYSTEM_COMMAND_LINE_H_
