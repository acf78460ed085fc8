#include "base/version.h"

#include <algorithm>
#include <charconv>

namespace brimle {
namespace {

constexpr std::size_t kMostDigits = 6;

/// Takes the number at the beginning off `text`. False where there is none, or one of another form.
bool takeNumber(std::string_view& text, std::uint32_t& number) {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  const auto digits = static_cast<std::size_t>(std::ranges::find_if_not(text, isDigit) - text.begin());
  if (digits == 0 || digits > kMostDigits || (digits > 1 && text.front() == '0')) return false;
  std::from_chars(text.data(), text.data() + digits, number);
  text.remove_prefix(digits);
  return true;
}

bool takeDot(std::string_view& text) {
  const bool there = text.starts_with('.');
  if (there) text.remove_prefix(1);
  return there;
}

}  // namespace

std::optional<Version> Version::parse(std::string_view text) {
  Version version;
  for (std::size_t i = 0; i < version.numbers.size(); ++i) {
    if (i > 0 && !takeDot(text)) return std::nullopt;
    if (!takeNumber(text, version.numbers[i])) return std::nullopt;
  }
  return text.empty() ? std::optional(version) : std::nullopt;
}

std::string Version::string() const {
  return std::to_string(numbers[0]) + '.' + std::to_string(numbers[1]) + '.' + std::to_string(numbers[2]);
}

}  // namespace brimle
