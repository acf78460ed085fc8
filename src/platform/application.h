// The port to the program as the desktop sees it: all of its windows, its appearance, its end.
#pragma once

#include <optional>
#include <string>

namespace brimle {

/// What the about panel says below the program's name and version, in the secondary label colour.
struct Credits {
  std::string text;
  double size;  ///< of the system font, in points
};

class Application {
 public:
  virtual ~Application() = default;

  /// Brings what is visible of the program in front of other programs. `token` is what the desktop gave
  /// whoever asked, for the window that takes the keyboard next; empty where it gave none.
  virtual void activate(const std::string& token) = 0;
  /// A minimised window is not visible.
  virtual bool hasVisibleWindow() const = 0;
  /// Forces the dark or the light appearance on all windows; nothing has them follow the desktop.
  virtual void forceAppearance(std::optional<bool> dark) = 0;
  virtual void showAbout(const Credits& credits) = 0;
  /// Ends the program once the present event is handled.
  virtual void quit() = 0;
};

}  // namespace brimle
