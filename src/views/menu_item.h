// An item of a context menu as data: what it says, how it stands, and what it does.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace brimle {

struct MenuItem {
  std::string title;             ///< in the interface language; empty for a separator
  std::function<void()> action;  ///< none for the heading of the items below it
  std::optional<bool> chosen{};  ///< set for one of a choice: whether it is the one in force
  bool destructive = false;      ///< drawn as a warning
  bool enabled = true;

  bool isSeparator() const { return title.empty(); }
  bool isHeading() const { return !isSeparator() && !action; }
};

}  // namespace brimle
