// Hosts in which no window can be shown: an operation gives its result for a run that didn't end in
// OK, and the host lives.
#include <dlfcn.h>
#include <locale.h>
#include <netinet/in.h>
#include <pthread.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>

#include "tests/promises/promise.h"

namespace orreryui {
namespace {

bool makes_threads = true;

}  // namespace
}  // namespace orreryui

// Stands before the function of the C library.
extern "C" __attribute__((visibility("default"))) int pthread_create(
    pthread_t* thread, const pthread_attr_t* attributes, void* (*body)(void*), void* argument) {
  if (!orreryui::makes_threads) return EAGAIN;
  static auto* const create =
      reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
  return create(thread, attributes, body, argument);
}

namespace orreryui {
namespace {

// A server that lets clients connect and never says a word to them.
class SilentServer {
 public:
  template <class Address>
  SilentServer(sa_family_t family, const Address& address)
      : socket_(socket(family, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    EXPECT_EQ(bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(listen(socket_, 16), 0);
  }
  ~SilentServer() { close(socket_); }
  SilentServer(const SilentServer&) = delete;
  SilentServer& operator=(const SilentServer&) = delete;

  int Port() const {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    EXPECT_EQ(getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size), 0);
    return ntohs(address.sin_port);
  }

 private:
  const int socket_;
};

class NoWindow : public Promise {};

TEST_F(NoWindow, WithoutADisplay) { ExpectNoDialog(); }

TEST_F(NoWindow, OnADisplayThatNeverAnswers) {
  constexpr int kFirstDisplayPort = 6000;
  const SilentServer server(AF_INET, sockaddr_in{AF_INET, 0, {htonl(INADDR_LOOPBACK)}, {}});
  setenv("DISPLAY", ("127.0.0.1:" + std::to_string(server.Port() - kFirstDisplayPort)).c_str(), 1);
  const auto start = std::chrono::steady_clock::now();
  ExpectNoDialog();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

TEST_F(NoWindow, OnAWaylandSocketThatNeverAnswers) {
  const std::string path = testing::TempDir() + "/silent-" + std::to_string(getpid());
  sockaddr_un address{AF_UNIX, {}};
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  const SilentServer server(AF_UNIX, address);
  setenv("WAYLAND_DISPLAY", path.c_str(), 1);
  ExpectNoDialog();
  unlink(path.c_str());
}

TEST_F(NoWindow, WhereNoThreadCanBeMade) {
  makes_threads = false;
  setenv("DISPLAY", ":40961", 1);
  ExpectNoDialog();
}

TEST_F(NoWindow, WithFewDescriptors) {
  UseOffscreen();
  // The sanitizers need two themselves.
  for (rlim_t count = 2; count < 8; ++count) {
    LeaveDescriptors(count);
    ExpectNoDialog();
  }
}

TEST_F(NoWindow, BesideAnotherVersionOfTheToolkit) {
  ASSERT_NE(dlopen(ORRERYUI_OTHER_TOOLKIT, RTLD_NOW | RTLD_GLOBAL), nullptr) << dlerror();
  UseOffscreen();
  ExpectNoDialog();
}

TEST_F(NoWindow, AThousandTimes) {
  ExpectBounded([] { EXPECT_EQ(OnRengeConfirm("", "", "", ""), -1); });
}

}  // namespace
}  // namespace orreryui
