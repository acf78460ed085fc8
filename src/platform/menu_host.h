// The port to where the menu bar is shown: behind a button of the window, and in the desktop's own bar where
// there is one.
#pragma once

#include <utility>
#include <vector>

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

/// Several places that show the same bar; they must outlive this.
class MenuHosts : public MenuHost {
 public:
  explicit MenuHosts(std::vector<MenuHost*> hosts) : hosts_(std::move(hosts)) {}

  void install(const MenuBar& bar) override {
    for (MenuHost* host : hosts_) host->install(bar);
  }
  void refreshMarks(const MenuBar& bar) override {
    for (MenuHost* host : hosts_) host->refreshMarks(bar);
  }

 private:
  const std::vector<MenuHost*> hosts_;
};

}  // namespace brimle
