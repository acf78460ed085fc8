#include "base/uuid.h"

#include <sys/random.h>

#include <random>

namespace brimle {
namespace {

constexpr char kDigits[] = "0123456789ABCDEF";
constexpr std::size_t kLength = 36;

constexpr bool isHyphenAt(std::size_t index) {
  return index == 8 || index == 13 || index == 18 || index == 23;
}

/// The value of each byte as a hexadecimal digit, or -1.
constexpr std::array<std::int8_t, 256> kValues = [] {
  std::array<std::int8_t, 256> values{};
  values.fill(-1);
  for (int digit = 0; digit < 10; ++digit) values['0' + digit] = static_cast<std::int8_t>(digit);
  for (int digit = 0; digit < 6; ++digit) {
    values['A' + digit] = values['a' + digit] = static_cast<std::int8_t>(10 + digit);
  }
  return values;
}();

int valueOf(char digit) {
  return kValues[static_cast<unsigned char>(digit)];
}

void fillRandom(std::array<std::uint8_t, 16>& bytes) {
  if (getrandom(bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size())) return;
  std::random_device device;  // a kernel without the call
  for (auto& byte : bytes) byte = static_cast<std::uint8_t>(device());
}

}  // namespace

Uuid Uuid::random() {
  Uuid id;
  fillRandom(id.bytes);
  id.bytes[6] = static_cast<std::uint8_t>((id.bytes[6] & 0x0F) | 0x40);  // version 4
  id.bytes[8] = static_cast<std::uint8_t>((id.bytes[8] & 0x3F) | 0x80);  // the RFC's variant
  return id;
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
  if (text.size() != kLength) return std::nullopt;
  Uuid id;
  std::size_t at = 0;
  for (auto& byte : id.bytes) {
    if (isHyphenAt(at) && text[at++] != '-') return std::nullopt;
    const int high = valueOf(text[at]);
    const int low = valueOf(text[at + 1]);
    if ((high | low) < 0) return std::nullopt;
    byte = static_cast<std::uint8_t>(high << 4 | low);
    at += 2;
  }
  return id;
}

void Uuid::write(char* out) const {
  std::size_t at = 0;
  for (const auto byte : bytes) {
    if (isHyphenAt(at)) out[at++] = '-';
    out[at++] = kDigits[byte >> 4];
    out[at++] = kDigits[byte & 0x0F];
  }
}

std::string Uuid::string() const {
  std::string text(kLength, '\0');
  write(text.data());
  return text;
}

}  // namespace brimle
