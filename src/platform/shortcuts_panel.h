// The port to the panel with the shortcuts card.
#pragma once

#include <string>

namespace brimle {

class ShortcutsPanel {
 public:
  virtual ~ShortcutsPanel() = default;

  /// Shows the panel under a title, in the middle of the screen, in front and with the keyboard. It is made,
  /// and given the paper colour, at the first call; closing hides it.
  virtual void show(const std::string& title) = 0;
};

}  // namespace brimle
