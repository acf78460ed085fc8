// What the system says of the user's languages and region, read once at launch from the environment's locale
// variables (POSIX.1, chapter 8; LANGUAGE as GNU gettext reads it).
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimle {

struct SystemLocale {
  /// The locale name that decides region order and weekend: LC_ALL, LC_TIME or LANG; empty where none is set.
  std::string region;
  /// The preferred languages as BCP 47 tags, most preferred first; empty for C and POSIX.
  std::vector<std::string> preferredLanguages;
};

using Environment = std::function<std::optional<std::string>(const char* variable)>;

/// "zh_TW.UTF-8@radical" as "zh-TW".
std::string languageTag(std::string_view localeName);

SystemLocale systemLocale(const Environment& environment);

}  // namespace brimle
