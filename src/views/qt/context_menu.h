// A context menu on the screen.
#pragma once

#include <QPoint>
#include <vector>

#include "views/menu_item.h"

namespace brimle {

/// Shows the menu at a place on the screen; nothing where it has no items. An action runs when its item is
/// chosen.
void popUpMenu(std::vector<MenuItem> items, QPoint place);

}  // namespace brimle
