#include "views/web_link.h"

#include <algorithm>
#include <array>

namespace brimle {
namespace {

/// How an address may begin, and what opening it puts in front.
struct Scheme {
  std::string_view start;
  std::string_view added;
};
constexpr std::array<Scheme, 3> kSchemes{{{"https://", ""}, {"http://", ""}, {"www.", "https://"}}};

constexpr std::string_view kSentenceEnds = ".,;:!?'\"";
constexpr std::array<std::pair<char, char>, 3> kBrackets{{{'(', ')'}, {'[', ']'}, {'{', '}'}}};

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

bool startsWith(std::string_view text, std::string_view start) {
  return text.size() >= start.size() &&
         std::equal(start.begin(), start.end(), text.begin(), [](char a, char b) { return a == lower(b); });
}

bool isWordCharacter(char c) {
  return (c >= '0' && c <= '9') || (lower(c) >= 'a' && lower(c) <= 'z') || static_cast<signed char>(c) < 0;
}

/// Spaces, control characters, and what no address holds.
bool endsAddress(char c) {
  return static_cast<unsigned char>(c) <= ' ' || c == '<' || c == '>' || c == '"' || c == 0x7F;
}

/// For each kind of bracket, how many more of them `text` closes than it opens.
std::array<std::ptrdiff_t, kBrackets.size()> surplusOfClosing(std::string_view text) {
  std::array<std::ptrdiff_t, kBrackets.size()> surplus{};
  for (std::size_t kind = 0; kind < kBrackets.size(); ++kind) {
    surplus[kind] = std::count(text.begin(), text.end(), kBrackets[kind].second) -
                    std::count(text.begin(), text.end(), kBrackets[kind].first);
  }
  return surplus;
}

/// The address at the start of `text`, without what ends the sentence around it.
std::string_view addressIn(std::string_view text) {
  const auto end = std::find_if(text.begin(), text.end(), endsAddress);
  std::string_view address = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  auto surplus = surplusOfClosing(address);
  const auto takeSurplus = [&](char last) {
    for (std::size_t kind = 0; kind < kBrackets.size(); ++kind) {
      if (last == kBrackets[kind].second) return surplus[kind]-- > 0;
    }
    return false;
  };
  while (!address.empty() &&
         (kSentenceEnds.find(address.back()) != std::string_view::npos || takeSurplus(address.back()))) {
    address.remove_suffix(1);
  }
  return address;
}

}  // namespace

std::optional<std::string> firstWebLink(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (at > 0 && isWordCharacter(text[at - 1])) continue;
    for (const Scheme& scheme : kSchemes) {
      const std::size_t host = at + scheme.start.size();
      if (!startsWith(text.substr(at), scheme.start)) continue;
      if (host == text.size() || !isWordCharacter(text[host])) continue;
      return std::string(scheme.added) + std::string(addressIn(text.substr(at)));
    }
  }
  return std::nullopt;
}

}  // namespace brimle
