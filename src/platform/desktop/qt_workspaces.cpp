#include "platform/desktop/qt_workspaces.h"

#include <cstdint>
#include <string_view>

#include "platform/desktop/qt_xcb.h"

namespace brimle {
namespace {

constexpr std::uint32_t kAllDesktops = 0xFFFFFFFF;
constexpr std::uint32_t kFromApplication = 1;

xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name) {
  const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const xcb::Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
  return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

}  // namespace

void showOnAllWorkspaces(QWindow& window) {
  xcb_connection_t* connection = xcb::connectionOfQt();
  if (!connection) return;
  xcb_client_message_event_t message = {};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = static_cast<xcb_window_t>(window.winId());
  message.type = atomOf(connection, "_NET_WM_DESKTOP");
  message.data.data32[0] = kAllDesktops;
  message.data.data32[1] = kFromApplication;
  xcb_send_event(connection, 0, xcb::rootOf(connection),
                 XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&message));
  xcb_flush(connection);
}

}  // namespace brimle
