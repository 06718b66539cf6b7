#include "front_ends/qt/foreign_window.h"

#include <unistd.h>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QSysInfo>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <type_traits>

#include "front_ends/qt/xcb_library.h"

namespace orreryui {
namespace {

// Null on other displays.
xcb_connection_t* Connection() {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 != nullptr ? x11->connection() : nullptr;
}

// Sends the request `name` and waits for the reply, which is null if the server refuses.
template <class Request, class GetReply, class... Arguments>
auto Ask(const std::string& name, Arguments... arguments) {
  auto* const request = XcbFunction<Request>(name.c_str());
  auto* const get_reply = XcbFunction<GetReply>((name + "_reply").c_str());
  using Reply = std::invoke_result_t<GetReply, xcb_connection_t*,
                                     std::invoke_result_t<Request, xcb_connection_t*, Arguments...>,
                                     xcb_generic_error_t**>;
  const bool found = request != nullptr && get_reply != nullptr;
  xcb_connection_t* const display = Connection();
  Reply reply = found ? get_reply(display, request(display, arguments...), nullptr) : nullptr;
  return std::unique_ptr<std::remove_pointer_t<Reply>, decltype(&std::free)>(reply, std::free);
}

auto GeometryOf(xcb_window_t window) {
  return Ask<decltype(xcb_get_geometry), decltype(xcb_get_geometry_reply)>("xcb_get_geometry",
                                                                           window);
}

// The bytes of a property, as many as 64 at the most; none if the window has no such property.
std::string Property(xcb_window_t window, const std::string& name) {
  constexpr std::uint32_t kMostWords = 16;
  const auto atom = Ask<decltype(xcb_intern_atom), decltype(xcb_intern_atom_reply)>(
      "xcb_intern_atom", std::uint8_t(1), std::uint16_t(name.size()), name.c_str());
  if (!atom) return {};
  const auto value = Ask<decltype(xcb_get_property), decltype(xcb_get_property_reply)>(
      "xcb_get_property", std::uint8_t(0), window, atom->atom, std::uint32_t(XCB_ATOM_ANY),
      std::uint32_t(0), kMostWords);
  if (!value) return {};
  return {reinterpret_cast<const char*>(value.get() + 1), value->value_len * value->format / 8u};
}

// The number that a property holds, or 0.
std::uint32_t NumberIn(xcb_window_t window, const std::string& name) {
  std::uint32_t number = 0;
  Property(window, name).copy(reinterpret_cast<char*>(&number), sizeof number);
  return number;
}

// A display may hold windows of other machines.
bool IsOfThisProcess(xcb_window_t window) {
  const std::string machine = Property(window, "WM_CLIENT_MACHINE");
  return NumberIn(window, "_NET_WM_PID") == std::uint32_t(getpid()) &&
         (machine.empty() || machine == QSysInfo::machineHostName().toStdString());
}

bool IsOfQt(xcb_window_t window) {
  const QWindowList all = QGuiApplication::allWindows();
  return std::any_of(all.begin(), all.end(), [window](QWindow* one) {
    return one->handle() != nullptr && one->winId() == window;
  });
}

}  // namespace

std::unique_ptr<QWindow> ActiveForeignWindow(WId own) {
  if (Connection() == nullptr) return nullptr;
  const auto place = GeometryOf(xcb_window_t(own));
  const xcb_window_t active = place ? NumberIn(place->root, "_NET_ACTIVE_WINDOW") : 0;
  if (active == 0 || IsOfQt(active) || !IsOfThisProcess(active)) return nullptr;
  return std::unique_ptr<QWindow>(QWindow::fromWinId(active));
}

QRect FrameOf(const QWindow& window) {
  if (window.type() != Qt::ForeignWindow) return window.frameGeometry();
  // What Qt knows of the place of such a window counts from the frame around it.
  const auto id = xcb_window_t(window.winId());
  const auto place = GeometryOf(id);
  if (!place) return window.geometry();
  const auto corner =
      Ask<decltype(xcb_translate_coordinates), decltype(xcb_translate_coordinates_reply)>(
          "xcb_translate_coordinates", id, place->root, std::int16_t(0), std::int16_t(0));
  if (!corner) return window.geometry();
  const double scale = window.devicePixelRatio();
  return QRect((QPointF(corner->dst_x, corner->dst_y) / scale).toPoint(),
               (QSizeF(place->width, place->height) / scale).toSize());
}

}  // namespace orreryui
