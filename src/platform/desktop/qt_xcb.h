// The X server through xcb, where Qt is shown on one.
#pragma once

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>

namespace brimle::xcb {

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};
/// What xcb gives away.
template <class Type>
using Owned = std::unique_ptr<Type, Free>;

/// The connection to the X server that the program is shown on; none where it is shown otherwise.
inline xcb_connection_t* connectionOfQt() {
  const auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
  return x11 ? x11->connection() : nullptr;
}

inline xcb_window_t rootOf(xcb_connection_t* connection) {
  return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

}  // namespace brimle::xcb
