#include "platform/system/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/strings/code_page_932.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

using Arguments = std::vector<std::string>;

class CommandLineTest : public testing::Test {
 protected:
  void MakeProgram(const std::string& name) const {
    std::filesystem::create_directories((folder_.Path() / name).parent_path());
    folder_.WriteProgram(name, "");
  }
  Arguments ArgumentsOf(const std::string& text) const {
    const auto command = ParseCommandLine("sh" + text);
    return command ? command->arguments : Arguments{"no program"};
  }
  TestFolder folder_;
};

TEST_F(CommandLineTest, FindsTheProgram) {
  MakeProgram("Program Files/My Editor/ed");
  const std::string program = folder_.PathOf("Program Files/My Editor/ed");
  const std::string spelled = "C:" + folder_.PathOf("program files\\my editor\\ED");
  for (const std::string& line :
       {spelled + " -x", " \t" + spelled + "\t-x", '"' + spelled + "\" -x"}) {
    const auto command = ParseCommandLine(line);
    ASSERT_TRUE(command) << line;
    EXPECT_EQ(command->program, program) << line;
    EXPECT_EQ(command->arguments, Arguments({"-x"})) << line;
  }
}

TEST_F(CommandLineTest, TheShorterProgramComesFirst) {
  MakeProgram("a");
  MakeProgram("a b");
  EXPECT_EQ(ParseCommandLine(folder_.PathOf("a b"))->program, folder_.PathOf("a"));
  EXPECT_EQ(ParseCommandLine('"' + folder_.PathOf("a b") + "\"")->program, folder_.PathOf("a b"));
}

TEST_F(CommandLineTest, ABareNameIsLookedForOnThePath) {
  const auto command = ParseCommandLine("sh");
  ASSERT_TRUE(command);
  EXPECT_EQ(command->program.substr(command->program.rfind('/')), "/sh");
  EXPECT_EQ(command->program.front(), '/');
  EXPECT_EQ(command->arguments, Arguments());
}

TEST_F(CommandLineTest, WhatIsNoProgramGivesNothing) {
  folder_.Write("text", "");
  for (const std::string& line :
       {std::string(), std::string("  "), std::string("\""), std::string("\"\" x"),
        std::string("no-such-program-anywhere x"), folder_.PathOf("text"),
        folder_.PathOf("missing"), folder_.Path().string()}) {
    EXPECT_FALSE(ParseCommandLine(line)) << line;
  }
}

TEST_F(CommandLineTest, SplitsArguments) {
  const struct {
    std::string text;
    Arguments arguments;
  } kCases[] = {
      {"  a \t b  ", {"a", "b"}},
      {R"( "a b" c"d e"f "")", {"a b", "cd ef", ""}},
      {R"( -x\"y -a\\"b c" -d\\\"e)", {"-x\"y", "-a\\b c", "-d\\\"e"}},
      {R"( "open to the end)", {"open to the end"}},
      {" -\x95\x5C\"a b\"", {"-表a b"}},  // the second half of 表 is no backslash
      {" C:\\no-such\\new.txt -c:\\x", {"/no-such/new.txt", "-c:\\x"}},
      {" ;rm $(x) `y` | z > w & *", {";rm", "$(x)", "`y`", "|", "z", ">", "w", "&", "*"}},
  };
  for (const auto& c : kCases) EXPECT_EQ(ArgumentsOf(c.text), c.arguments) << c.text;
}

TEST_F(CommandLineTest, PathsOfWhatExistsStayWhole) {
  for (const char* name : {"a.txt", "A b.txt", "ルート 表.txt", "x\"y z"}) folder_.Write(name, "");
  const std::string folder = "C:" + folder_.Path().string() + "\\";
  EXPECT_EQ(ArgumentsOf(" -n " + folder + "a B.TXT "),
            Arguments({"-n", folder_.PathOf("A b.txt")}));
  EXPECT_EQ(ArgumentsOf(' ' + folder + "a.txt -n"), Arguments({folder_.PathOf("a.txt"), "-n"}));
  EXPECT_EQ(ArgumentsOf(' ' + folder + FromUtf8("ルート 表.txt").bytes),
            Arguments({folder_.PathOf("ルート 表.txt")}));
  EXPECT_EQ(ArgumentsOf(' ' + folder + "x\"y z"), Arguments({folder_.PathOf("x\"y z")}));
  EXPECT_EQ(ArgumentsOf(" \"" + folder + "a b.txt\" x"),
            Arguments({folder_.PathOf("A b.txt"), "x"}));
}

}  // namespace
}  // namespace orreryui
