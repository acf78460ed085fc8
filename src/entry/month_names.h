// The names of the months as people write them, read in a locale's language.
// Names come from the locale data: full and abbreviated, as they stand in a date and alone, with their final
// dot or without it. Case does not count. The locale "en_GB" also takes plain English's names, so that "sep"
// reads beside "sept".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace brimle {

inline constexpr std::string_view kBritishEnglish = "en_GB";

class MonthNames {
 public:
  /// Adds the names of an ICU locale. A name that is known already keeps its month.
  void add(const std::string& locale);

  /// The month a name means, 1 to 12; nothing where it is no month's name.
  std::optional<int> find(std::string_view name) const;

 private:
  std::unordered_map<std::string, int> months_;  ///< by folded name
};

/// The names of an ICU locale, built at its first use and kept, for building costs far more than reading a
/// token. Main thread only.
const MonthNames& monthNames(std::string_view locale);

}  // namespace brimle
