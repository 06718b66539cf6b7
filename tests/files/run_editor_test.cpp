#include "frame/run_editor.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "platform/dialogs/front_end_loader.h"
#include "tests/support/test_folder.h"

namespace orreryui {
namespace {

// Editors are scripts that the tests write.
class RunEditorTest : public testing::Test {
 protected:
  RunEditorTest() {
    folder_.WriteProgram("ed", "printf '<%s>' \"$@\" > '" + folder_.PathOf("told") + "'");
  }
  bool Run(const std::string& editor, const std::string& path) const {
    return RunEditor(editor.c_str(), path.c_str());
  }
  std::optional<std::string> Told() const { return folder_.Read("told"); }

  TestFolder folder_;
  ScopedFrontEnd no_screen_{nullptr};
};

TEST_F(RunEditorTest, WaitsUntilTheEditorHasEnded) {
  folder_.WriteProgram("slow", "sleep 0.2; echo edited >> \"$1\"");
  folder_.Write("file", "text ");
  EXPECT_TRUE(Run(folder_.PathOf("slow"), folder_.PathOf("file")));
  EXPECT_EQ(folder_.Read("file"), "text edited\n");
}

TEST_F(RunEditorTest, GivesPathsToTheEditorAsTheyAre) {
  for (const std::string name : {"two words.txt", "$(touch x) ;|&`'\"*?.txt", "表.txt"}) {
    folder_.Write(name, "");
    EXPECT_TRUE(
        Run(folder_.PathOf("ed"), "C:" + folder_.PathOf(name == "表.txt" ? "\x95\x5C.txt" : name)));
    EXPECT_EQ(Told(), '<' + folder_.PathOf(name) + '>');
  }
  EXPECT_FALSE(std::filesystem::exists("x"));
}

TEST_F(RunEditorTest, StartsNothingWithoutAProgram) {
  folder_.Write("text", "no program");
  folder_.WriteProgram("no-interpreter", "");
  folder_.Write("no-interpreter", "touch '" + folder_.PathOf("told") + "'\n");
  for (const std::string editor :
       {"", "  ", "no-such-program-anywhere", "text", "no-interpreter"}) {
    const bool here = std::filesystem::exists(folder_.Path() / editor) && !editor.empty();
    EXPECT_FALSE(Run(here ? folder_.PathOf(editor) : editor, folder_.PathOf("ed"))) << editor;
  }
  EXPECT_EQ(Told(), std::nullopt);
}

TEST_F(RunEditorTest, ACommandLineHas299BytesAtMost) {
  const std::string editor = folder_.PathOf("ed");
  const std::string path = folder_.PathOf("x");
  const std::string filler = editor + " " + std::string(299 - editor.size() - path.size() - 2, 'f');
  EXPECT_FALSE(Run(filler + "f", path));
  EXPECT_EQ(Told(), std::nullopt);
  EXPECT_TRUE(Run(filler, path));
  EXPECT_TRUE(Told());
}

TEST_F(RunEditorTest, TheEditorStartsWithAFreshState) {
  folder_.WriteProgram("state",
                       "(echo /proc/self/fd/[0-9]*; grep -E 'Sig(Blk|Ign)' /proc/self/status) > '" +
                           folder_.PathOf("told") + "'");
  const int leaked = open("/dev/null", O_RDONLY);
  ASSERT_GE(fcntl(leaked, F_DUPFD, 100), 100);
  sigset_t blocked;
  sigset_t before;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  sigprocmask(SIG_BLOCK, &blocked, &before);
  const auto old_handler = signal(SIGINT, SIG_IGN);
  EXPECT_TRUE(Run(folder_.PathOf("state"), "x"));
  signal(SIGINT, old_handler);
  sigprocmask(SIG_SETMASK, &before, nullptr);
  const std::string told = Told().value_or("");
  EXPECT_EQ(told.find("/fd/100"), std::string::npos) << told;
  EXPECT_NE(told.find("SigBlk:\t0000000000000000"), std::string::npos) << told;
  const auto ignored = told.find("SigIgn:\t");
  ASSERT_NE(ignored, std::string::npos) << told;
  EXPECT_EQ(std::stoull(told.substr(ignored + 8), nullptr, 16) & (1u << (SIGINT - 1)), 0u) << told;
  close(100);
  close(leaked);
}

TEST_F(RunEditorTest, ReturnsInAHostThatIgnoresOrCollectsItsChildren) {
  const auto old_handler = signal(SIGCHLD, SIG_IGN);
  EXPECT_TRUE(Run(folder_.PathOf("ed"), "x"));
  signal(SIGCHLD, [](int) {
    while (waitpid(-1, nullptr, WNOHANG) > 0) {
    }
  });
  EXPECT_TRUE(Run(folder_.PathOf("ed"), "y"));
  signal(SIGCHLD, old_handler);
  EXPECT_EQ(Told(), "<y>");
}

}  // namespace
}  // namespace orreryui
