// A menu on the screen.
#pragma once

#include <QPoint>
#include <vector>

#include "platform/menu.h"

namespace brimle {

/// Shows the menu at a place on the screen; nothing where it has no items. An action runs when its item is
/// chosen. The keys beside the items are only shown.
void popUpMenu(const std::vector<MenuEntry>& items, QPoint place);

}  // namespace brimle
