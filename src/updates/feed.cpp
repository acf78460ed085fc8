#include "updates/feed.h"

#include <simdjson.h>

#include <algorithm>
#include <set>

#include "base/text.h"

namespace brimle {
namespace {

namespace dom = simdjson::dom;

constexpr std::string_view kScheme = "https://";

/// An absolute https address of printable ASCII: a host without a user's name before it, then anything.
bool isSecureAddress(std::string_view text) {
  constexpr std::string_view neverPlain = "\"<>\\^`{|}";
  const auto isPlain = [&](char c) { return c > ' ' && c <= '~' && neverPlain.find(c) == neverPlain.npos; };
  if (!text.starts_with(kScheme) || !std::ranges::all_of(text, isPlain)) return false;
  text.remove_prefix(kScheme.size());
  const std::string_view host = text.substr(0, text.find_first_of("/?#"));
  return !host.empty() && host.front() != ':' && host.find('@') == host.npos;
}

bool readVersion(std::string_view text, Feed& feed) {
  const auto version = Version::parse(text);
  if (version) feed.version = *version;
  return version.has_value();
}

bool readDate(std::string_view text, Feed& feed) {
  const auto day = parseDay(text);
  if (day) feed.date = *day;
  return day && dayKey(*day) == text;
}

bool readNotes(std::string_view text, Feed& feed) {
  feed.notes = trimmedLines(text);
  return true;
}

bool readAddress(std::string_view text, Feed& feed) {
  feed.address = text;
  return isSecureAddress(text);
}

struct Field {
  std::string_view key;
  std::size_t longest;  ///< bytes
  bool (*read)(std::string_view text, Feed& feed);
};

constexpr Field kFields[] = {
    {"version", 32, readVersion},
    {"date", 10, readDate},
    {"notes", 8 * 1024, readNotes},
    {"address", 2 * 1024, readAddress},
};

bool readField(const Field& field, dom::element value, Feed& feed) {
  std::string_view text;
  if (value.get(text) != simdjson::SUCCESS) return false;
  return text.size() <= field.longest && field.read(text, feed);
}

}  // namespace

std::optional<Feed> parseFeed(std::string_view document) {
  if (document.empty() || document.size() > kLongestFeed) return std::nullopt;
  dom::parser parser;
  dom::object object;
  if (parser.parse(document.data(), document.size()).get(object) != simdjson::SUCCESS) return std::nullopt;
  Feed feed;
  std::set<std::string_view> seen;
  for (const auto& [key, value] : object) {
    if (!seen.insert(key).second) return std::nullopt;
    const auto* field = std::ranges::find(kFields, key, &Field::key);
    if (field != std::end(kFields) && !readField(*field, value, feed)) return std::nullopt;
  }
  const bool whole =
      std::ranges::all_of(kFields, [&](const Field& field) { return seen.contains(field.key); });
  return whole ? std::optional(feed) : std::nullopt;
}

}  // namespace brimle
