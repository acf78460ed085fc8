#include "views/web_link.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace brimle {
namespace {

/// How an address may begin, and what opening it puts in front.
struct Scheme {
  std::string_view start;
  std::string_view added;
};
constexpr std::array<Scheme, 3> kSchemes{{{"https://", ""}, {"http://", ""}, {"www.", "https://"}}};

/// Quotation marks and the punctuation of languages that put no space after it.
constexpr std::u32string_view kOutside = U"<>\"“”‘’«»‹›…、。，：；！？（）「」『』【】《》〈〉";
constexpr std::string_view kSentenceEnds = ".,;:!?'";
constexpr std::array<std::pair<char, char>, 3> kBrackets{{{'(', ')'}, {'[', ']'}, {'{', '}'}}};

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

bool startsWith(std::string_view text, std::string_view start) {
  return text.size() >= start.size() &&
         std::equal(start.begin(), start.end(), text.begin(), [](char a, char b) { return a == lower(b); });
}

bool isAsciiWordCharacter(char c) {
  return (c >= '0' && c <= '9') || (lower(c) >= 'a' && lower(c) <= 'z');
}

bool beginsHost(char c) {
  return isAsciiWordCharacter(c) || static_cast<signed char>(c) < 0;
}

/// Spaces, control characters, bytes that are no text, and what stands in no address.
bool endsAddress(UChar32 c) {
  return c <= ' ' || c == 0x7F || u_isUWhiteSpace(c) ||
         kOutside.find(static_cast<char32_t>(c)) != kOutside.npos;
}

std::size_t lengthOfAddress(std::string_view text) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    UChar32 c;
    U8_NEXT(bytes, at, text.size(), c);
    if (endsAddress(c)) return start;
  }
  return text.size();
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
  std::string_view address = text.substr(0, lengthOfAddress(text));
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
    // Other letters may stand right before it: not every language puts spaces between words.
    if (at > 0 && isAsciiWordCharacter(text[at - 1])) continue;
    for (const Scheme& scheme : kSchemes) {
      const std::size_t host = at + scheme.start.size();
      if (!startsWith(text.substr(at), scheme.start)) continue;
      if (host == text.size() || !beginsHost(text[host])) continue;
      const std::string_view address = addressIn(text.substr(at));
      if (at + address.size() > host) return std::string(scheme.added) + std::string(address);
    }
  }
  return std::nullopt;
}

}  // namespace brimle
