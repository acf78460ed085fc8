#include "platform/desktop/qt_workspaces.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace brimle {
namespace {

constexpr std::uint32_t kAllDesktops = 0xFFFFFFFF;
constexpr std::uint32_t kFromApplication = 1;

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};

xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name) {
  const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
      xcb_intern_atom_reply(connection, cookie, nullptr));
  return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

}  // namespace

void showOnAllWorkspaces(QWindow& window) {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
  if (!connection) return;
  xcb_client_message_event_t message = {};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = static_cast<xcb_window_t>(window.winId());
  message.type = atomOf(connection, "_NET_WM_DESKTOP");
  message.data.data32[0] = kAllDesktops;
  message.data.data32[1] = kFromApplication;
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  xcb_send_event(connection, 0, root,
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&message));
  xcb_flush(connection);
}

}  // namespace brimle
