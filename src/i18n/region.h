// The user's region: what it changes about days, as plain values.
// The region comes from the system's locale settings, never from the interface language.
#pragma once

#include <bitset>
#include <string_view>

#include "base/day.h"

namespace brimle {

struct Region {
  /// Short numeric dates put the month before the day.
  bool monthFirst = false;
  /// The weekend, indexed from Sunday (std::chrono::weekday::c_encoding).
  std::bitset<7> weekend = 0b1000001;

  bool isWeekend(Day day) const;
  bool operator==(const Region&) const = default;
};

/// The region of a POSIX or BCP 47 locale name such as "en_US.UTF-8": the field order of its CLDR pattern for
/// the skeleton "dM" (day first where it has none) and its CLDR week data. "C", "POSIX" and an empty name
/// give day first and Saturday and Sunday.
Region regionOf(std::string_view localeName);

}  // namespace brimle
