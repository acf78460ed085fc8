// Identities: random version-4 UUIDs (RFC 4122), written as 36 characters in upper case.
// Example: "1B4E28BA-2FA1-41D2-883F-0016D3CCA427".
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace brimle {

struct Uuid {
  std::array<std::uint8_t, 16> bytes{};

  /// A fresh identity from the system's random source.
  static Uuid random();
  /// Reads the 36-character form in either case; any other text is nothing.
  static std::optional<Uuid> parse(std::string_view text);

  /// Writes the canonical form, exactly 36 characters and no terminator, to `out`.
  void write(char* out) const;
  std::string string() const;

  auto operator<=>(const Uuid&) const = default;
};

}  // namespace brimle

template <>
struct std::hash<brimle::Uuid> {
  std::size_t operator()(const brimle::Uuid& id) const noexcept {
    std::size_t value;  // random bits already: any eight of the bytes are a good hash
    std::memcpy(&value, id.bytes.data() + 8, sizeof value);
    return value;
  }
};
