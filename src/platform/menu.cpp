#include "platform/menu.h"

namespace brimle {

std::vector<MenuEntry> submenusOf(const MenuBar& bar) {
  std::vector<MenuEntry> entries;
  for (const Menu& menu : bar) {
    entries.push_back({.title = menu.title.empty() ? "Brimle" : menu.title, .items = menu.items});
  }
  return entries;
}

void tellThatMenusOpen(const MenuBar& bar) {
  for (const Menu& menu : MenuBar(bar)) {
    if (menu.willOpen) menu.willOpen();
  }
}

}  // namespace brimle
