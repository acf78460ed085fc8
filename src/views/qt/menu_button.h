// The menu bar in the window, for most desktops have none of their own: one menu, opened from the title
// strip, by Alt or by F10, with a submenu for each menu of the bar. The keys it shows beside the items are
// the program's business, not its own.
#pragma once

#include <QPoint>

#include "platform/menu_host.h"

namespace brimle {

class MenuButton : public MenuHost {
 public:
  void install(const MenuBar& bar) override { bar_ = bar; }
  void refreshMarks(const MenuBar& bar) override { bar_ = bar; }

  /// Opens the menu at a place on the screen.
  void popUp(QPoint place);

 private:
  MenuBar bar_;
};

}  // namespace brimle
