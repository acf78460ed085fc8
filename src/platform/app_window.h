// The port to the program's main window, which is made once, hidden when it is closed, and never destroyed.
#pragma once

#include <vector>

#include "base/rect.h"

namespace brimle {

/// What a text field does by itself while it has the keyboard.
enum class EditCommand { undo, redo, cut, copy, paste, selectAll };

class AppWindow {
 public:
  virtual ~AppWindow() = default;

  /// Where the window is, or, while it is on its way, where it will be.
  virtual Rect frame() const = 0;
  /// Moves and resizes the window: animated where it is visible and motion is welcome.
  virtual void setFrame(const Rect& frame) = 0;
  /// What panels leave free of each screen: first of the one the window is on, or where it is on none, of
  /// the main one. Empty where there is no screen.
  virtual std::vector<Rect> screens() const = 0;
  /// Shows the window, minimised or hidden as it may be, in front of others and gives it the keyboard.
  virtual void orderFront() = 0;
  virtual void minimise() = 0;
  /// Takes the paper colour anew as its background.
  virtual void refreshPaper() = 0;
  /// Has the text field that has the keyboard do a command; false where there is none, or where it has
  /// nothing of its own to undo or redo.
  virtual bool edit(EditCommand command) = 0;
};

}  // namespace brimle
