// The menu bar in the interface language, made from the table of menus. It is made anew for each language, so
// nobody keeps an item of it: whoever wants one looks for its title.
#pragma once

#include <functional>
#include <string_view>

#include "app/core/menu_table.h"
#include "control/keys.h"
#include "platform/menu.h"

namespace brimle {

struct MenuActions {
  /// What an item does; the value is that of the setting it sets, else empty.
  std::function<void(Command command, std::string_view value)> perform;
  /// Called before a menu that has check marks opens.
  std::function<void()> menuWillOpen;
};

/// The whole menu bar in the current language, with no check mark set.
MenuBar buildMenu(const MenuActions& actions);

/// The menu with this title, in the language of the bar; null where there is none.
Menu* topMenu(MenuBar& bar, std::string_view title);

/// Sets the check marks of a group to what `isOn` says of their rows. An item that is not found by its title
/// in the current language is skipped.
void refreshMarks(MenuBar& bar, MarkGroup group, const std::function<bool(const MenuRow&)>& isOn);

/// The item that a key press chooses; null where there is none. Shift counts with letters alone, for some
/// keyboards need it to type the others; Caps Lock never does.
const MenuEntry* itemFor(const MenuBar& bar, const KeyPress& key);

}  // namespace brimle
