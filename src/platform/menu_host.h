// The port to where the menu bar is shown: behind a button of the window, on desktops without a bar of their
// own.
#pragma once

#include "platform/menu.h"

namespace brimle {

class MenuHost {
 public:
  virtual ~MenuHost() = default;

  /// Shows a menu bar in the place of the one before. May be called from an item's action.
  virtual void install(const MenuBar& bar) = 0;
  /// Takes the check marks of the bar it shows from `bar`, which has the same items. May be called while a
  /// menu is about to open.
  virtual void refreshMarks(const MenuBar& bar) = 0;
};

}  // namespace brimle
