// How the desktop knows the program: its desktop file, its name on the session bus, its icon (the Desktop
// Entry Specification; reverse-DNS, as D-Bus well-known names are).
#pragma once

namespace brimle {

inline constexpr char kApplicationId[] = "org.brimle.Brimle";

}  // namespace brimle
