// Hosts without a QApplication: each test runs its host as a process of its own.

#include <gmock/gmock.h>

#include <QApplication>
#include <QTemporaryDir>

#include "tests/qt/plugin.h"

// Qt is never torn down, so what the font library holds for it at the end is no leak.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:libfontconfig";
}
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_options() {
  return "print_suppressions=0";
}

namespace orreryui {
namespace {

// A host's main program: it ends the process with 0 if all was well. The test also fails if the
// host prints anything, but for what the platform without a screen says of itself.
template <typename Host>
void ExpectQuiet(Host host) {
  GTEST_FLAG_SET(death_test_style, "fast");
  EXPECT_EXIT(std::exit(host() ? 0 : 1), testing::ExitedWithCode(0),
              "^(This plugin does not support [a-zA-Z]+\\(\\)\n)*$");
}

void SetVariables(const char* platform, const char* display) {
  for (const char* name :
       {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE", "XAUTHORITY"}) {
    unsetenv(name);
  }
  static const QTemporaryDir runtime_folder;  // Qt complains of one that others may read
  setenv("XDG_RUNTIME_DIR", runtime_folder.path().toUtf8().constData(), 1);
  if (platform != nullptr) setenv("QT_QPA_PLATFORM", platform, 1);
  if (display != nullptr) setenv("DISPLAY", display, 1);
}

bool RunOnce() {
  FakeSession session;
  session.Add(ControlKind::kPushButton, 1, "OK");
  bool shown = false;
  session.handler = [&](const std::string& gesture) {
    shown = true;
    session.ended = gesture == "paint";
  };
  FrontEnd* const front_end = LoadFrontEnd();
  return front_end != nullptr && front_end->RunDialog(session) && shown;
}

TEST(Process, NoUsableDisplayGivesNoFrontEnd) {
  const std::vector<std::pair<const char*, const char*>> displays = {
      {nullptr, nullptr},       {nullptr, ""},
      {nullptr, ":4711"},       {"xcb", ":4711"},
      {"xcb;wayland", nullptr}, {"nosuchplatform", nullptr},
      {"linuxfb", nullptr},     {"eglfs", nullptr},
      {"minimalegl", nullptr},  {"vkkhrdisplay", nullptr}};
  for (const auto& [platform, display] : displays) {
    ExpectQuiet([platform = platform, display = display] {
      SetVariables(platform, display);
      return LoadFrontEnd() == nullptr && LoadFrontEnd() == nullptr;
    });
  }
}

TEST(Process, ALaterCallFindsTheDisplayThatHasComeUp) {
  ExpectQuiet([] {
    SetVariables("nosuchplatform", nullptr);
    if (LoadFrontEnd() != nullptr) return false;
    SetVariables("nosuchplatform;offscreen", nullptr);
    return RunOnce();
  });
}

TEST(Process, OtherVersionsOfTheSeamAreRefused) {
  ExpectQuiet([] {
    SetVariables("offscreen", nullptr);
    return LoadFrontEnd(kFrontEndVersion + 1) == nullptr && QCoreApplication::instance() == nullptr;
  });
}

TEST(Process, GlyphsAreJapaneseWhateverTheHostsLanguage) {
  const QTemporaryDir pictures;
  for (const char* language : {"ja_JP.UTF-8", "zh_CN.UTF-8"}) {
    ExpectQuiet([&] {
      SetVariables("offscreen", nullptr);
      setenv("LC_ALL", language, 1);
      FakeSession session;
      session.Add(ControlKind::kStatic, 1, "直骨海角", 30);
      bool saved = false;
      if (LoadFrontEnd() == nullptr) return false;
      RunWithUser(session, [&](QDialog& window) {
        saved = ControlWidget<QWidget>(window, 1).grab().save(pictures.filePath(language), "PNG");
      });
      return saved;
    });
  }
  const QImage japanese(pictures.filePath("ja_JP.UTF-8"));
  EXPECT_FALSE(japanese.isNull());
  EXPECT_EQ(japanese, QImage(pictures.filePath("zh_CN.UTF-8")));
}

}  // namespace
}  // namespace orreryui
