// The port to the windows in which an update check tells its result: one at a time, never in the way of
// others.
#pragma once

#include <string>
#include <vector>

namespace brimle {

/// What a window says; all of it is plain text, whatever it looks like.
struct UpdateMessage {
  struct Button {
    std::string text;
    std::string address;  ///< opened when the button is pressed; empty where it only closes the window
    bool operator==(const Button&) const = default;
  };

  std::string title;
  std::string text;
  std::string notes;            ///< of a release, several lines; mostly empty
  std::vector<Button> buttons;  ///< the first is the default
  bool operator==(const UpdateMessage&) const = default;
};

class UpdateWindows {
 public:
  virtual ~UpdateWindows() = default;

  /// Opens the window in front, in place of one that is open.
  virtual void show(const UpdateMessage& message) = 0;
  virtual bool isOpen() const = 0;
  /// Brings the open window to the front; nothing where none is open.
  virtual void bringForward() = 0;
};

}  // namespace brimle
