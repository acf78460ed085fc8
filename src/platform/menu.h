// Menus as values: what the desktop is given to show. Titles are in the interface language.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brimle {

/// An item, a submenu or, where it has no title, the line between items. One with neither an action nor
/// items only tells: it is shown disabled.
struct MenuEntry {
  std::string title{};
  std::function<void()> action{};
  char key = 0;              ///< chooses it while Command is held; upper case asks for Shift too; 0 for none
  std::optional<bool> on{};  ///< its check mark; none where it never carries one
  bool destructive = false;  ///< drawn as a warning
  std::vector<MenuEntry> items{};

  bool isSeparator() const { return title.empty(); }
};

struct Menu {
  std::string title;  ///< empty for the program's own menu, which goes by the program's name
  std::vector<MenuEntry> items{};
  std::function<void()> willOpen{};  ///< to be called before the menu opens, where it is set
};

using MenuBar = std::vector<Menu>;

/// A submenu for each menu of the bar, with titles for all.
std::vector<MenuEntry> submenusOf(const MenuBar& bar);

/// To be called before menus of the bar open. Whoever sets their check marks may replace the bar meanwhile.
void tellThatMenusOpen(const MenuBar& bar);

}  // namespace brimle
