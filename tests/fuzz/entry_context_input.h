// A day, a region and an interface language from the first three bytes of an input.
#pragma once

#include <array>
#include <string>

#include "entry/entry_context.h"
#include "i18n/i18n.h"
#include "input.h"

namespace brimle {

inline EntryContext takeEntryContext(Input& input) {
  using namespace std::chrono_literals;
  static constexpr std::array<Day, 7> days{2026y / 6 / 15, 2027y / 1 / 1,   2027y / 12 / 31, 2028y / 2 / 28,
                                           2028y / 2 / 29, 9999y / 12 / 31, 1y / 1 / 1};
  // Asked for once: ICU takes a millisecond for each.
  static const std::array<Region, 4> regions{regionOf("en_GB"), regionOf("en_US"), regionOf("fa_IR"),
                                             regionOf("C")};
  const Day today = input.oneOf(days);
  const Region& region = input.oneOf(regions);
  return {today, region, std::string(input.oneOf(I18n::languages()).locale)};
}

}  // namespace brimle
