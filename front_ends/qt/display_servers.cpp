#include "front_ends/qt/display_servers.h"

#include <poll.h>
#include <pthread.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <future>
#include <string>
#include <thread>

#include "front_ends/qt/xcb_library.h"

namespace orreryui {
namespace {

constexpr std::chrono::seconds kPatience(3);

// Connects by the library that Qt itself uses, which knows about names and authorities.
std::shared_ptr<void> Connect() {
  auto* const connect = XcbFunction<void*(const char*, int*)>("xcb_connect");
  auto* const has_error = XcbFunction<int(void*)>("xcb_connection_has_error");
  auto* const disconnect = XcbFunction<void(void*)>("xcb_disconnect");
  if (connect == nullptr || has_error == nullptr || disconnect == nullptr) return nullptr;
  std::shared_ptr<void> connection(connect(nullptr, nullptr), disconnect);
  return has_error(connection.get()) == 0 ? connection : nullptr;
}

// Blocks all signals of the thread, and those of the threads that it starts meanwhile.
class SignalBlock {
 public:
  SignalBlock() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~SignalBlock() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  SignalBlock(const SignalBlock&) = delete;
  SignalBlock& operator=(const SignalBlock&) = delete;

 private:
  sigset_t before_;
};

// Runs Connect on a thread that takes none of the host's signals. Throws where no thread can be
// made: the X platform couldn't do without one, either.
std::future<std::shared_ptr<void>> StartConnecting() {
  std::packaged_task<std::shared_ptr<void>()> task(Connect);
  std::future<std::shared_ptr<void>> answer = task.get_future();
  const SignalBlock block;
  std::thread(std::move(task)).detach();
  return answer;
}

std::string WaylandSocketPath() {
  const char* const display = std::getenv("WAYLAND_DISPLAY");
  std::string name = display != nullptr && *display != 0 ? display : "wayland-0";
  if (name.front() == '/') return name;
  const char* const folder = std::getenv("XDG_RUNTIME_DIR");
  return folder != nullptr ? std::string(folder) + '/' + name : std::string();
}

// Asks the compositor to say that it has come this far (the request `sync` of the object 1).
bool WaylandAnswersOn(int socket_number) {
  const std::array<std::uint32_t, 3> sync = {1, 12u << 16, 2};
  if (send(socket_number, sync.data(), sizeof sync, MSG_NOSIGNAL) != ssize_t(sizeof sync)) {
    return false;
  }
  pollfd wait{socket_number, POLLIN, 0};
  const auto patience = std::chrono::duration_cast<std::chrono::milliseconds>(kPatience).count();
  if (poll(&wait, 1, int(patience)) != 1) return false;
  char first = 0;
  return recv(socket_number, &first, 1, 0) == 1;
}

}  // namespace

std::shared_ptr<void> ConnectToXServer() {
  // Never destroyed: waiting for a server that hangs must not hold up the end of the process.
  static auto& pending = *new std::future<std::shared_ptr<void>>;
  const char* const display = std::getenv("DISPLAY");
  if (display == nullptr || *display == 0) return nullptr;
  if (!pending.valid()) pending = StartConnecting();
  if (pending.wait_for(kPatience) != std::future_status::ready) return nullptr;
  std::shared_ptr<void> connection = pending.get();
  return connection && XConnectionHolds(connection.get()) ? connection : nullptr;
}

bool XConnectionHolds(void* connection) {
  auto* const has_error = XcbFunction<int(void*)>("xcb_connection_has_error");
  auto* const socket_of = XcbFunction<int(void*)>("xcb_get_file_descriptor");
  if (has_error == nullptr || socket_of == nullptr) return true;
  if (has_error(connection) != 0) return false;
  // The server may have gone before anybody read from the connection.
  pollfd socket{socket_of(connection), POLLRDHUP, 0};
  return poll(&socket, 1, 0) <= 0 || (socket.revents & (POLLRDHUP | POLLHUP | POLLERR)) == 0;
}

bool WaylandServerAnswers() {
  if (std::getenv("WAYLAND_SOCKET") != nullptr) return true;
  const std::string path = WaylandSocketPath();
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.empty() || path.size() >= sizeof address.sun_path) return false;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  const int number = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (number < 0) return false;
  const bool answered =
      connect(number, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
      WaylandAnswersOn(number);
  close(number);
  return answered;
}

}  // namespace orreryui
