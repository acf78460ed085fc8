// The port to the general clipboard, plain text only.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brimle {

class Pasteboard {
 public:
  virtual ~Pasteboard() = default;

  /// The text on the clipboard; nothing where it holds none.
  virtual std::optional<std::string> string() const = 0;
  /// Clears the clipboard and puts a text on it.
  virtual void setString(std::string_view text) = 0;
};

}  // namespace brimle
