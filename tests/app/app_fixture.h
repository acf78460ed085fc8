// The program's shell over a simulated desktop, launched on Monday 15 June 2026 at 09:00 UTC.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>

#include "app/core/app_delegate.h"
#include "i18n/i18n.h"
#include "model/notation.h"
#include "platform/simulated/memory_files.h"
#include "platform/simulated/simulated_app_window.h"
#include "platform/simulated/simulated_application.h"
#include "platform/simulated/simulated_desktop.h"
#include "platform/simulated/simulated_hot_key.h"
#include "platform/simulated/simulated_login_item.h"
#include "platform/simulated/simulated_menu_host.h"
#include "platform/simulated/simulated_pasteboard.h"
#include "platform/simulated/simulated_preferences_store.h"
#include "platform/simulated/simulated_services.h"
#include "platform/simulated/simulated_status_item.h"
#include "platform/simulated/simulated_time.h"
#include "prefs/palette.h"

namespace brimle {

inline void PrintTo(const Rect& rect, std::ostream* out) {
  *out << rect.width << "x" << rect.height << " at " << rect.x << "," << rect.y;
}

/// A desktop that says nothing of midnight: the day is seen by those who look.
struct SilentTime : SimulatedTime {
  Subscription onDayChange(std::function<void()>) override { return {}; }
};

struct JournalCenter : LocalNotificationCenter {
  JournalCenter(Journal& into, Time& time, Files& files)
      : LocalNotificationCenter(time, files, "/state"), journal(into) {}
  void deliver(NotificationRequest request, std::function<void(bool)> done) override {
    journal.push_back("notified " + request.identifier + ": " + request.title + ", " + request.body);
    done(true);
  }
  Journal& journal;
};

class AppTest : public testing::Test {
 protected:
  ~AppTest() override {
    I18n::setLang("en");
    Palette::setTone("warm");
  }

  /// Launches the program with these lists of this day of June.
  void launch(std::string_view lists = "", const std::string& day = "15") {
    openDay(lists, day);
    begin(window, menus, shortcuts);
  }

  void openDay(std::string_view lists, const std::string& day = "15") {
    app.reset();
    time.setClock(time.at("2026-06-" + day + " 09:00"));
    files.put("/data/today.json", document(lists, day));
    store.emplace(Store::Ports{time, files, desktop, center}, Region{}, "/data");
    ui.emplace(preferences, std::vector<std::string>{"fr"});
  }

  /// Launches the program on the day that is open.
  void begin(AppWindow& in, MenuHost& with, ShortcutsPanel& card) {
    app.emplace(AppDelegate::Ports{time, desktop, preferences, pasteboard, center, application, in, with,
                                   status, hotKey, loginItem, updates, card, links},
                *store, *ui, todayFocusAdd, "help@brimle.invalid");
    app->finishedLaunching();
    app->joinDesktop();
    time.runUntilIdle();
  }

  /// What was asked of the desktop since this was last called.
  Journal asked() { return std::exchange(journal, {}); }

  bool press(const std::string& characters, Modifiers modifiers = Modifier::command) {
    return app->performKeyEquivalent({KeyCode::other, characters, modifiers});
  }

  /// The titles of the items that are on, below those that are given or in the whole menu bar.
  std::vector<std::string> ticked(const std::vector<MenuEntry>& items) const {
    std::vector<std::string> titles;
    for (const MenuEntry& item : items) {
      if (item.on.value_or(false)) titles.push_back(item.title);
      for (const auto& title : ticked(item.items)) titles.push_back(item.title + "/" + title);
    }
    return titles;
  }
  std::vector<std::string> ticked() const {
    std::vector<std::string> titles;
    for (const Menu& menu : menus.bar) std::ranges::copy(ticked(menu.items), std::back_inserter(titles));
    return titles;
  }

  SilentTime time;
  MemoryFiles files;
  SimulatedDesktop desktop;
  SimulatedPreferencesStore preferences;
  SimulatedPasteboard pasteboard;
  Journal journal;
  JournalCenter center{journal, time, files};
  SimulatedApplication application{journal};
  SimulatedAppWindow window{journal};
  SimulatedMenuHost menus;
  SimulatedStatusItem status;
  SimulatedHotKey hotKey;
  SimulatedLoginItem loginItem{journal};
  SimulatedUpdateController updates{journal};
  SimulatedShortcutsPanel shortcuts{journal};
  SimulatedLinkOpener links{journal};
  Signal<> todayFocusAdd;
  Subscription onFocus = todayFocusAdd.subscribe([this] { journal.emplace_back("focus"); });
  std::optional<Store> store;
  std::optional<UIState> ui;
  std::optional<AppDelegate> app;
};

}  // namespace brimle
