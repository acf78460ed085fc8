// A menu on the screen.
#pragma once

#include <QPoint>
#include <vector>

#include "platform/menu.h"

class QMenu;

namespace brimle {

/// Shows the menu at a place on the screen and gives it back, deleted when it closes; nothing where it has no
/// items. An action runs when its item is chosen. The keys beside the items are only shown.
QMenu* popUpMenu(const std::vector<MenuEntry>& items, QPoint place);

}  // namespace brimle
