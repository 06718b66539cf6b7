// Hosts without a QApplication: each test runs its host as a process of its own.

#include <gmock/gmock.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <QThread>
#include <clocale>
#include <csignal>
#include <filesystem>

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

std::size_t OpenFiles() {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    count += entry.is_symlink();
  }
  return count;
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

TEST(Process, AServerThatHangsGivesNoFrontEnd) {
  ExpectQuiet([] {
    SetVariables(nullptr, nullptr);
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    constexpr int kFirstPort = 6000;
    int number = 300;
    do {
      address.sin_port = htons(std::uint16_t(kFirstPort + ++number));
    } while (bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0);
    listen(listener, 4);
    setenv("DISPLAY", ("127.0.0.1:" + std::to_string(number)).c_str(), 1);
    return LoadFrontEnd() == nullptr;
  });
}

TEST(Process, ACompositorThatHangsGivesNoFrontEnd) {
  ExpectQuiet([] {
    const QTemporaryDir folder;
    SetVariables("wayland", nullptr);
    const std::string path = folder.filePath("wayland-9").toStdString();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    const bool listening =
        bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
        listen(listener, 4) == 0;
    setenv("WAYLAND_DISPLAY", path.c_str(), 1);
    return listening && LoadFrontEnd() == nullptr;
  });
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

TEST(Process, AnApplicationWithoutWidgetsOrOnAnotherThreadIsRefused) {
  ExpectQuiet([] {
    SetVariables("offscreen", nullptr);
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    return LoadFrontEnd() == nullptr;
  });
  ExpectQuiet([] {
    SetVariables("offscreen", nullptr);
    int argc = 0;
    const QApplication application(argc, nullptr);
    bool refused = false;
    const std::unique_ptr<QThread> other(
        QThread::create([&] { refused = LoadFrontEnd() == nullptr; }));
    other->start();
    other->wait();
    return refused;
  });
}

TEST(Process, StaysAsItWasAroundADialog) {
  ExpectQuiet([] {
    SetVariables("offscreen", nullptr);
    setenv("LC_ALL", "C", 1);
    setenv("DESKTOP_STARTUP_ID", "host", 1);
    std::signal(SIGUSR1, [](int) {});
    const auto handler = [] {
      struct sigaction action {};
      sigaction(SIGUSR1, nullptr, &action);
      return action.sa_handler;
    };
    const auto variables = [] {
      std::vector<std::string> all;
      for (char** entry = environ; *entry != nullptr; ++entry) all.emplace_back(*entry);
      std::sort(all.begin(), all.end());
      return all;
    };
    const auto folder = std::filesystem::current_path();
    const auto before = variables();
    const auto handler_before = handler();
    return RunOnce() && std::string(std::setlocale(LC_ALL, nullptr)) == "C" &&
           variables() == before && handler() == handler_before &&
           std::filesystem::current_path() == folder;
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

TEST(Process, QtsOwnChoosersAreJapanese) {
  ExpectQuiet([] {
    SetVariables("offscreen", nullptr);
    FrontEnd* const front_end = LoadFrontEnd();
    QStringList labels;
    ThenInFront([&](QWidget& front) {
      for (const QLabel* label : front.findChildren<QLabel*>()) labels << label->text();
      front.close();
    });
    front_end->ChooseColour(0);
    return labels.filter("赤").size() == 1 && labels.filter("Red").isEmpty();
  });
}

TEST(Process, AThousandDialogsLeaveNoFileOpen) {
  ExpectQuiet([] {
    SetVariables("offscreen", nullptr);
    if (!RunOnce()) return false;
    const std::size_t before = OpenFiles();
    for (int run = 0; run < 1000; ++run) {
      if (!RunOnce()) return false;
    }
    return OpenFiles() == before && QApplication::topLevelWidgets().isEmpty();
  });
}

}  // namespace
}  // namespace orreryui
