// Shows a context menu given as data. It may leave the window.
#pragma once

#include <vector>

#include "views/menu_item.h"

namespace brimle {

/// Opens the menu at the pointer; nothing where it has no items. The chosen item's action runs later.
void popUpMenu(std::vector<MenuItem> items);

}  // namespace brimle
