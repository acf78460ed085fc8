// The program's shell: what happens as it is launched, the main window's size and place, the menus and their
// commands, the status item, and what it does when the desktop calls on it.
//
// It owns the menu bar and whether the window is folded. It refers to the store and the settings, and reaches
// the desktop through ports alone. Every command goes through `perform`; the sources are parted by what they
// are about: app_<subject>.cpp.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "app/core/menu_bar.h"
#include "base/lifetime.h"
#include "base/rect.h"
#include "base/signal.h"
#include "model/store.h"
#include "platform/app_window.h"
#include "platform/application.h"
#include "platform/hot_key.h"
#include "platform/link_opener.h"
#include "platform/local_notification_center.h"
#include "platform/login_item.h"
#include "platform/menu_host.h"
#include "platform/pasteboard.h"
#include "platform/preferences_store.h"
#include "platform/shortcuts_panel.h"
#include "platform/status_item.h"
#include "platform/update_controller.h"
#include "prefs/ui_state.h"

namespace brimle {

class AppDelegate {
 public:
  struct Ports {
    Time& time;
    Desktop& desktop;
    PreferencesStore& preferences;
    Pasteboard& pasteboard;
    LocalNotificationCenter& notifications;
    Application& application;
    AppWindow& window;
    MenuHost& menus;
    StatusItem& status;
    HotKey& hotKey;
    LoginItem& loginItem;
    UpdateController& updates;
    ShortcutsPanel& shortcuts;
    LinkOpener& links;
  };

  /// Builds and installs the menu bar; the rest waits for `finishedLaunching`. `todayFocusAdd` is posted for
  /// the entry field to take the keyboard. All references must outlive this.
  AppDelegate(Ports ports, Store& store, UIState& ui, Signal<>& todayFocusAdd, std::string supportAddress);
  AppDelegate(const AppDelegate&) = delete;
  AppDelegate& operator=(const AppDelegate&) = delete;

  // Calls of the desktop. A token is what it gave whoever asked for the program to come forward, or empty.
  /// Once, when the event loop runs.
  void finishedLaunching();
  /// Once, a moment after that: the hot key and the status item, which the first frame need not wait for.
  void joinDesktop();
  /// The program came in front of others.
  void becameActive();
  /// The program was launched again, or one of its notifications was clicked.
  void reopen(const std::string& token);
  /// The window was moved or resized, by whomever.
  void windowFrameChanged();
  /// Screens were added, removed or changed: a window that is on none of them any more comes onto one.
  void screensChanged();
  void willTerminate();

  /// Brings the window forward with the keyboard in the entry field.
  void focusQuickAdd(const std::string& token = {});
  /// Does what the menu item with this key does; false where there is none.
  bool performKeyEquivalent(const KeyPress& key);
  /// `value` is that of the setting the command sets.
  void perform(Command command, std::string_view value = {});

 private:
  // The window (app_window.cpp).
  void restoreFrame();
  void saveFrame();
  void moveWindow(const Rect& target);
  void applyCompact(bool compact);
  void setSize(Size size);
  void sizeCompact();
  void sizeRegular();
  void sizeLarge();
  void minimise() { ports_.window.minimise(); }

  // Menus and settings (app_menus.cpp).
  void installMenu();
  void updateMarks(std::initializer_list<MarkGroup> groups);
  void menuWillOpen();
  bool isOn(const MenuRow& row) const;
  bool fieldTakes(Command command);
  void choose(Command command, std::string_view value);
  void chooseAppearance(std::string_view value);
  void applyAppearance();
  void languageChanged();
  void resetDefaults();

  // The status item (app_status.cpp).
  void installStatusItem();
  void updateStatus();
  std::string countText() const;
  std::vector<MenuEntry> statusMenu();

  // Services (app_services.cpp).
  void scheduleTestArrival();
  void newTask() { focusQuickAdd(); }
  void copyDay();
  void pasteTasks();
  void undo() { store_.undo(); }
  void redo() { store_.redo(); }
  void quit() { ports_.application.quit(); }
  void showAbout();
  void checkForUpdates() { ports_.updates.checkForUpdates(); }
  void toggleLoginItem();
  void showShortcuts();
  void sendFeedback();

  void settingsChanged();
  /// Calls `action` on a later turn of the main queue, unless this is gone by then.
  void later(Seconds delay, std::function<void()> action) {
    ports_.time.after(delay, life_.guard(std::move(action)));
  }

  const Ports ports_;
  Store& store_;
  UIState& ui_;
  Signal<>& todayFocusAdd_;
  const std::string supportAddress_;

  MenuBar menuBar_;
  double expandedHeight_;      ///< of the window, to return to when it unfolds; in points
  bool isCompactNow_ = false;  ///< the window is folded
  bool frameUnsaved_ = false;  ///< a save of the frame is asked for
  bool seenCompact_ = false;   ///< the settings as they were last told
  std::string seenPaperTone_;
  std::vector<Subscription> cancellables_;
  Lifetime life_;
};

}  // namespace brimle
