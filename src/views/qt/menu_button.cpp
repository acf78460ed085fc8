#include "views/qt/menu_button.h"

#include "views/qt/pop_up_menu.h"

namespace brimle {

void MenuButton::popUp(QPoint place) {
  tellThatMenusOpen(bar_);
  popUpMenu(submenusOf(bar_), place);
}

}  // namespace brimle
