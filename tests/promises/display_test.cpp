// Hosts without Qt on a display of their own, which the environment of this program names and on
// which somebody else presses the keys.
#include <signal.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include "tests/promises/promise.h"

namespace orreryui {
namespace {

std::string ValueOf(const char* variable) {
  const char* const value = getenv(variable);
  return value ? value : "";
}

// Whether a process has ended and given its connections up.
bool HasGone(int process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/stat");
  std::string text;
  return !std::getline(file, text) || text.find(") Z ") != std::string::npos;
}

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply) {
  return {reply, std::free};
}

// The active window of a host without Qt, in a frame as a window manager draws it.
class HostWindow {
 public:
  static constexpr int kLeft = 200;
  static constexpr int kTop = 150;
  static constexpr int kWidth = 500;
  static constexpr int kHeight = 400;

  HostWindow()
      : display_(xcb_connect(nullptr, nullptr)),
        root_(xcb_setup_roots_iterator(xcb_get_setup(display_)).data->root),
        window_(Create(Create(root_, kLeft, kTop), 0, 0)) {
    const std::uint32_t wanted = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(display_, root_, XCB_CW_EVENT_MASK, &wanted);
    Set(window_, "_NET_WM_PID", XCB_ATOM_CARDINAL, static_cast<std::uint32_t>(getpid()));
    Set(root_, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, window_);
    xcb_flush(display_);
  }
  ~HostWindow() { xcb_disconnect(display_); }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  xcb_window_t Window() const { return window_; }

  // Waits for a window and closes it as its close box does.
  void CloseTheNextWindow() {
    while (const auto event = Owned(xcb_wait_for_event(display_))) {
      if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY) continue;
      return Close(reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window);
    }
  }

  xcb_window_t owner_of_closed = 0;
  std::pair<int, int> centre_of_closed;

 private:
  xcb_window_t Create(xcb_window_t parent, std::int16_t x, std::int16_t y) {
    const xcb_window_t window = xcb_generate_id(display_);
    xcb_create_window(display_, XCB_COPY_FROM_PARENT, window, parent, x, y, kWidth, kHeight, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
  }

  xcb_atom_t Atom(const std::string& name) {
    const auto cookie =
        xcb_intern_atom(display_, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    return Owned(xcb_intern_atom_reply(display_, cookie, nullptr))->atom;
  }

  void Set(xcb_window_t window, const char* name, xcb_atom_t type, std::uint32_t value) {
    xcb_change_property(display_, XCB_PROP_MODE_REPLACE, window, Atom(name), type, 32, 1, &value);
  }

  void Close(xcb_window_t window) {
    const auto owner = Owned(xcb_get_property_reply(
        display_,
        xcb_get_property(display_, 0, window, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, 0, 1),
        nullptr));
    if (owner->value_len == 1) std::memcpy(&owner_of_closed, owner.get() + 1, 4);
    const auto place =
        Owned(xcb_get_geometry_reply(display_, xcb_get_geometry(display_, window), nullptr));
    centre_of_closed = {place->x + place->width / 2, place->y + place->height / 2};
    xcb_client_message_event_t close{};
    close.response_type = XCB_CLIENT_MESSAGE;
    close.format = 32;
    close.window = window;
    close.type = Atom("WM_PROTOCOLS");
    close.data.data32[0] = Atom("WM_DELETE_WINDOW");
    xcb_send_event(display_, 0, window, 0, reinterpret_cast<const char*>(&close));
    xcb_flush(display_);
  }

  xcb_connection_t* const display_;
  const xcb_window_t root_;
  const xcb_window_t window_;
};

class Display : public Promise {
 protected:
  void SetUp() override {
    const std::string display = ValueOf("DISPLAY");
    const std::string authority = ValueOf("XAUTHORITY");
    ASSERT_FALSE(display.empty() || authority.empty());
    Promise::SetUp();
    setenv("DISPLAY", display.c_str(), 1);
    setenv("XAUTHORITY", authority.c_str(), 1);
    setenv("DESKTOP_STARTUP_ID", "host", 1);
  }
};

TEST_F(Display, TheFirstButtonIsPressed) {
  LeaveDescriptors(10);
  EXPECT_EQ(Confirm(), 1);
}

TEST_F(Display, StandsBeforeTheHostsWindow) {
  HostWindow host;
  std::thread user([&host] { host.CloseTheNextWindow(); });
  EXPECT_EQ(Confirm(), -1);
  user.join();
  EXPECT_EQ(host.owner_of_closed, host.Window());
  EXPECT_NEAR(host.centre_of_closed.first, HostWindow::kLeft + HostWindow::kWidth / 2, 1);
  EXPECT_NEAR(host.centre_of_closed.second, HostWindow::kTop + HostWindow::kHeight / 2, 1);
}

TEST_F(Display, WithoutTheRightToUseIt) {
  setenv("XAUTHORITY", "/dev/null", 1);
  ExpectNoDialog();
}

TEST_F(Display, WhenItsServerDies) {
  ASSERT_EQ(Confirm(), -1);  // by Esc
  const int server = std::stoi(ValueOf("DISPLAY_SERVER"));
  ASSERT_EQ(kill(server, SIGKILL), 0);
  while (!HasGone(server)) std::this_thread::yield();
  EXPECT_EQ(Confirm(), -1);
}

}  // namespace
}  // namespace orreryui
