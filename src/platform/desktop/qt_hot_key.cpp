#include "platform/desktop/qt_hot_key.h"

#include <QGuiApplication>

#include "platform/desktop/qt_portal_shortcuts.h"
#include "platform/desktop/qt_xcb_key_grab.h"

namespace brimle {
namespace {

/// Also for a window that Wayland shows by way of X11: a grab would hold only while such a window has the
/// focus.
bool isOnWayland() {
  return QGuiApplication::platformName().startsWith(QLatin1String("wayland")) ||
         (QGuiApplication::platformName() == QLatin1String("xcb") &&
          !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"));
}

}  // namespace

std::unique_ptr<HotKey> hotKeyOfDesktop(PreferencesStore& preferences) {
  if (isOnWayland()) return std::make_unique<QtPortalShortcuts>(preferences);
  return std::make_unique<QtXcbKeyGrab>();
}

}  // namespace brimle
