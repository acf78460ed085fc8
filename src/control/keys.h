// A key press as the key tables see it: which key, what it types, which modifiers are held.
//
// The desktop side reduces its own events to this in one place. Num Lock, and whether a key stands on the
// number pad, are left out there. Option is Alt and Command is Ctrl on the keyboards of this desktop, Control
// is Super.
#pragma once

#include <cstdint>
#include <string>

namespace brimle {

/// The keys that have commands, by the numbers that the key tables know them by. Any other number is a key
/// without a command.
enum class KeyCode : std::uint16_t {
  a = 0,
  c = 8,
  enter = 36,  ///< Return; the Enter of the number pad is another key
  tab = 48,
  space = 49,
  backspace = 51,
  escape = 53,
  forwardDelete = 117,
  down = 125,
  up = 126,
  other = 0xFFFF,
};

enum class Modifier : std::uint8_t {
  capsLock = 1,
  shift = 2,
  control = 4,
  option = 8,
  command = 16,
  help = 32
};

/// A set of modifiers. `==` asks whether exactly these are held, so that Caps Lock alone makes a difference.
class Modifiers {
 public:
  constexpr Modifiers() = default;
  constexpr Modifiers(Modifier modifier) : bits_(static_cast<std::uint8_t>(modifier)) {}

  constexpr bool has(Modifier modifier) const { return (bits_ & static_cast<std::uint8_t>(modifier)) != 0; }
  constexpr Modifiers operator|(Modifiers other) const {
    other.bits_ |= bits_;
    return other;
  }
  constexpr bool operator==(const Modifiers&) const = default;

 private:
  std::uint8_t bits_ = 0;
};

constexpr Modifiers operator|(Modifier a, Modifier b) {
  return Modifiers(a) | b;
}

struct KeyPress {
  KeyCode code = KeyCode::other;
  std::string characters;  ///< what the key types where no modifier is held
  Modifiers modifiers;
};

}  // namespace brimle
