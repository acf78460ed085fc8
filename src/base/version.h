// Versions of the program: three numbers, compared from the left.
//
// Example: "1.10.0" is newer than "1.9.3". There are no other forms: no letters, no leading zeros, no blanks.
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brimle {

struct Version {
  std::array<std::uint32_t, 3> numbers{};

  /// Reads three numbers of one to six digits, joined by dots; any other text is nothing.
  static std::optional<Version> parse(std::string_view text);
  std::string string() const;

  // NOLINTNEXTLINE(modernize-use-nullptr): takes the compiler's own comparison with 0 for a null pointer
  std::strong_ordering operator<=>(const Version&) const = default;
};

}  // namespace brimle
