// A menu bar without a screen: tests look at it, and open and choose in it as a user does.
#pragma once

#include <algorithm>
#include <string_view>

#include "platform/menu_host.h"

namespace brimle {

class SimulatedMenuHost : public MenuHost {
 public:
  MenuBar bar;
  int installs = 0;

  void install(const MenuBar& menus) override {
    bar = menus;
    ++installs;
  }
  void refreshMarks(const MenuBar& menus) override { bar = menus; }

  /// Opens a menu, counted from the left, as far as telling that it will.
  void open(std::size_t menu) {
    if (const auto told = bar.at(menu).willOpen) told();
  }
  /// Chooses an item by where it is, "2/Paper/White" in the third menu. False where there is none that can be
  /// chosen.
  bool choose(std::string_view path) {
    const auto menu = static_cast<std::size_t>(path.front() - '0');
    const MenuEntry* item = find(bar.at(menu).items, path.substr(2));
    if (!item || !item->action) return false;
    const auto action = item->action;
    action();
    return true;
  }

 private:
  static const MenuEntry* find(const std::vector<MenuEntry>& items, std::string_view path) {
    const std::string_view title = path.substr(0, path.find('/'));
    const auto item = std::ranges::find(items, title, &MenuEntry::title);
    if (item == items.end() || title.size() == path.size()) return item == items.end() ? nullptr : &*item;
    return find(item->items, path.substr(title.size() + 1));
  }
};

}  // namespace brimle
