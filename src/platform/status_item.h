// The port to the program's item in the desktop's status area: a small circle with a count beside it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/menu.h"

namespace brimle {

class StatusItem {
 public:
  struct Actions {
    /// A left click, with the activation token the desktop gave for it; empty where it gave none.
    std::function<void(const std::string& token)> click;
    /// What a right click shows, to be asked for anew each time the menu opens.
    std::function<std::vector<MenuEntry>()> menu;
  };

  virtual ~StatusItem() = default;

  /// Puts the item there. Does nothing where the desktop has no status area.
  virtual void install(Actions actions) = 0;
  /// The text beside the circle, empty for the circle alone, and the same in words for the tooltip.
  virtual void setTitle(const std::string& title, const std::string& tooltip) = 0;
};

}  // namespace brimle
