// What the fuzz targets share: a promise that must hold, and what they make of the fuzzer's bytes.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/text.h"
#include "entry/entry_context.h"
#include "i18n/i18n.h"

namespace brimle {

/// In every build type, a promise that is broken ends the process.
inline void require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", promise);
  std::abort();
}

inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Takes the first three bytes of an input: a day, a region and an interface language. Where none are left
/// they count as zero, so that every input means something.
inline EntryContext takeEntryContext(std::string_view& input) {
  using namespace std::chrono_literals;
  static constexpr Day days[] = {2026y / 6 / 15, 2027y / 1 / 1,   2027y / 12 / 31, 2028y / 2 / 28,
                                 2028y / 2 / 29, 9999y / 12 / 31, 1y / 1 / 1};
  // Asked for once: ICU takes a millisecond for each.
  static const Region regions[] = {regionOf("en_GB"), regionOf("en_US"), regionOf("fa_IR"), regionOf("C")};
  const auto oneOf = [&input](const auto& table) {
    const std::size_t byte = input.empty() ? 0 : static_cast<std::uint8_t>(input.front());
    input.remove_prefix(input.empty() ? 0 : 1);
    return std::data(table)[byte % std::size(table)];
  };
  const Day today = oneOf(days);
  const Region region = oneOf(regions);
  return {today, region, std::string(oneOf(I18n::languages()).locale)};
}

}  // namespace brimle
