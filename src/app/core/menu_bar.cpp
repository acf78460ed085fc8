#include "app/core/menu_bar.h"

#include <algorithm>

#include "i18n/i18n.h"

namespace brimle {
namespace {

using Entries = std::vector<MenuEntry>;

constexpr bool isUpper(char key) {
  return key >= 'A' && key <= 'Z';
}
constexpr char lowered(char key) {
  return isUpper(key) ? static_cast<char>(key - 'A' + 'a') : key;
}
constexpr bool isLetter(char key) {
  return lowered(key) >= 'a' && lowered(key) <= 'z';
}

MenuEntry entryOf(const MenuRow& row, const MenuActions& actions) {
  MenuEntry entry;
  if (row.title.empty()) return entry;
  entry.title = I18n::t(row.title);
  entry.action = [perform = actions.perform, &row] { perform(row.command, row.value); };
  entry.key = row.key;
  if (row.marks != MarkGroup::never) entry.on = false;
  return entry;
}

bool hasMarks(std::string_view menu) {
  return std::ranges::any_of(
      menuRows(), [menu](const MenuRow& row) { return row.menu == menu && row.marks != MarkGroup::never; });
}

Menu menuOf(const MenuRow& row, const MenuActions& actions) {
  Menu menu;
  menu.title = I18n::t(row.menu);
  if (hasMarks(row.menu)) menu.willOpen = actions.menuWillOpen;
  return menu;
}

/// The first of these items with a title, or null.
template <class Item>
Item* titled(std::vector<Item>& items, std::string_view title) {
  const auto found = std::ranges::find(items, title, &Item::title);
  return found == items.end() ? nullptr : &*found;
}

MenuEntry* itemOf(MenuBar& bar, const MenuRow& row) {
  Menu* menu = row.menu.empty() && !bar.empty() ? &bar.front() : topMenu(bar, I18n::t(row.menu));
  if (!menu) return nullptr;
  if (row.submenu.empty()) return titled(menu->items, I18n::t(row.title));
  MenuEntry* submenu = titled(menu->items, I18n::t(row.submenu));
  return submenu ? titled(submenu->items, I18n::t(row.title)) : nullptr;
}

bool chooses(const KeyPress& press, char key) {
  const Modifiers held = press.modifiers;
  return key != 0 && press.characters.size() == 1 && press.characters[0] == lowered(key) &&
         held.has(Modifier::command) && !held.has(Modifier::option) && !held.has(Modifier::control) &&
         (!isLetter(key) || held.has(Modifier::shift) == isUpper(key));
}

}  // namespace

MenuBar buildMenu(const MenuActions& actions) {
  MenuBar bar;
  MenuRow before;
  for (const MenuRow& row : menuRows()) {
    if (bar.empty() || row.menu != before.menu) bar.push_back(menuOf(row, actions));
    Entries* items = &bar.back().items;
    if (!row.submenu.empty()) {
      if (row.submenu != before.submenu) items->push_back({.title = I18n::t(row.submenu)});
      items = &items->back().items;
    }
    items->push_back(entryOf(row, actions));
    before = row;
  }
  return bar;
}

Menu* topMenu(MenuBar& bar, std::string_view title) {
  return titled(bar, title);
}

void refreshMarks(MenuBar& bar, MarkGroup group, const std::function<bool(const MenuRow&)>& isOn) {
  for (const MenuRow& row : menuRows()) {
    if (row.marks != group) continue;
    if (MenuEntry* item = itemOf(bar, row)) item->on = isOn(row);
  }
}

const MenuEntry* itemFor(const MenuBar& bar, const KeyPress& key) {
  for (const Menu& menu : bar) {
    const auto found =
        std::ranges::find_if(menu.items, [&](const MenuEntry& item) { return chooses(key, item.key); });
    if (found != menu.items.end()) return &*found;
  }
  return nullptr;
}

}  // namespace brimle
