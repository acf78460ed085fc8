#include "views/qt/menu_button.h"

#include "views/qt/context_menu.h"
#include "views/qt/convert.h"

namespace brimle {

void MenuButton::popUp(QPoint place) {
  // The bar is made anew by whoever sets its check marks: those are asked for first, then it is shown as it
  // is.
  for (const Menu& menu : MenuBar(bar_)) {
    if (menu.willOpen) menu.willOpen();
  }
  std::vector<MenuEntry> items;
  for (const Menu& menu : bar_) {
    items.push_back({.title = menu.title.empty() ? "Brimle" : menu.title, .items = menu.items});
  }
  popUpMenu(items, place);
}

}  // namespace brimle
