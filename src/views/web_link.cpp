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

bool closesMoreThanOpens(std::string_view text) {
  return std::any_of(kBrackets.begin(), kBrackets.end(), [&](const auto& bracket) {
    return text.back() == bracket.second && std::count(text.begin(), text.end(), bracket.second) >
                                                std::count(text.begin(), text.end(), bracket.first);
  });
}

/// The address at the start of `text`, without what ends the sentence around it.
std::string_view addressIn(std::string_view text) {
  const auto end = std::find_if(text.begin(), text.end(), endsAddress);
  std::string_view address = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  while (!address.empty() &&
         (kSentenceEnds.find(address.back()) != std::string_view::npos || closesMoreThanOpens(address))) {
    address.remove_suffix(1);
  }
  return address;
}

}  // namespace

std::optional<std::string> firstWebLink(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (at > 0 && isWordCharacter(text[at - 1])) continue;
    for (const Scheme& scheme : kSchemes) {
      if (!startsWith(text.substr(at), scheme.start)) continue;
      const std::string_view address = addressIn(text.substr(at));
      if (address.size() > scheme.start.size() && isWordCharacter(address[scheme.start.size()])) {
        return std::string(scheme.added) + std::string(address);
      }
    }
  }
  return std::nullopt;
}

}  // namespace brimle
