// What the fuzz targets share: a promise that must hold, and the fuzzer's bytes as parameters.
#pragma once

#include <algorithm>
#include <array>
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

/// Parameters taken from the front of the bytes. Where none are left they are zero and empty, so that every
/// input means something.
class Input {
 public:
  explicit Input(std::string_view bytes) : rest_(bytes) {}

  std::string_view rest() const { return rest_; }

  std::uint8_t byte() {
    const std::string_view taken = take(1);
    return taken.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(taken.front());
  }
  bool flag() { return byte() % 2 != 0; }
  /// A byte that says how long it is, then the text.
  std::string text() { return std::string(take(byte())); }
  std::string_view line() {
    const std::string_view line = take(std::min(rest_.find('\n'), rest_.size()));
    take(1);
    return line;
  }

  template <class Table>
  const auto& oneOf(const Table& table) {
    return std::data(table)[byte() % std::size(table)];
  }

 private:
  std::string_view take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
};

/// A day, a region and an interface language from the first three bytes of an input.
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
