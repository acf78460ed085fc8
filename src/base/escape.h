// Backslash escapes by a table: what a format writes as a backslash and a letter, and back.
// Example: with {'\n', 'n'} and {'\\', '\\'}, a line feed is written as "\n", a backslash as "\\".
#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace brimle {

struct Escape {
  char character, letter;
};

/// The text with the characters of the table escaped.
inline std::string escaped(std::string_view text, std::span<const Escape> escapes) {
  std::string result;
  for (const char c : text) {
    const auto escape = std::ranges::find(escapes, c, &Escape::character);
    if (escape == escapes.end()) {
      result += c;
    } else {
      result += {'\\', escape->letter};
    }
  }
  return result;
}

/// The text that was escaped so; nothing where a backslash stands before a letter that is not in the table.
inline std::optional<std::string> unescaped(std::string_view text, std::span<const Escape> escapes) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\') {
      result += text[at];
      continue;
    }
    if (++at == text.size()) return std::nullopt;
    const auto escape = std::ranges::find(escapes, text[at], &Escape::letter);
    if (escape == escapes.end()) return std::nullopt;
    result += escape->character;
  }
  return result;
}

}  // namespace brimle
