// The update feed: one JSON object that tells of the newest version. Reads bytes whose signature was checked
// before; it is strict all the same, so that a slip of its author never reaches a user.
//
// Example: {"version": "1.2.0", "date": "2026-06-15", "notes": "Faster.", "address":
// "https://brimle.example/1.2.0"}
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/day.h"
#include "base/version.h"

namespace brimle {

/// No feed is longer than this many bytes.
inline constexpr std::size_t kLongestFeed = 64 * 1024;

struct Feed {
  Version version;
  Day date{};
  std::string notes;    ///< what is new, without blank ends; may be empty
  std::string address;  ///< the https page to get the version from
  bool operator==(const Feed&) const = default;
};

/// The feed in a JSON document. Nothing where it is no object, lacks one of the four texts, holds any key
/// twice, or where a text is too long or of the wrong form. Keys that a later program may know are skipped.
std::optional<Feed> parseFeed(std::string_view document);

}  // namespace brimle
