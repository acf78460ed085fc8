// The services of the desktop that the program uses, in the order in which they are met. They want the
// QApplication to be there.
#pragma once

#include <memory>

#include "platform/build_settings.h"
#include "platform/desktop/qt_desktop.h"
#include "platform/desktop/qt_feed_source.h"
#include "platform/desktop/qt_global_menu.h"
#include "platform/desktop/qt_hot_key.h"
#include "platform/desktop/qt_link_opener.h"
#include "platform/desktop/qt_login_item.h"
#include "platform/desktop/qt_pasteboard.h"
#include "platform/desktop/qt_settings_portal.h"
#include "platform/desktop/qt_status_item.h"
#include "platform/desktop/qt_time.h"
#include "platform/desktop/qt_update_windows.h"
#include "updates/feed_update_controller.h"
#include "views/qt/pop_up_menu.h"

namespace brimle {

struct Services {
  /// `desktopLooksDark` holds where the desktop tells no preference. All references must outlive this.
  Services(Files& files, PreferencesStore& preferences, const BuildSettings& build, bool desktopLooksDark)
      : status(settings, desktopLooksDark, popUpMenu),
        hotKey(hotKeyOfDesktop(preferences)),
        loginItem(files),
        updates(build, feed, updateWindows) {}

  QtTime time;
  QtSettingsPortal settings;
  QtDesktop desktop{settings};
  QtPasteboard pasteboard;
  QtLinkOpener links;
  QtStatusItem status;
  QtGlobalMenu globalMenu;
  const std::unique_ptr<HotKey> hotKey;
  QtLoginItem loginItem;
  QtFeedSource feed;
  QtUpdateWindows updateWindows;
  FeedUpdateController updates;
};

}  // namespace brimle
