#include "platform/system_locale.h"

#include <algorithm>
#include <string_view>

namespace brimle {
namespace {

/// The first of the variables that is set and not empty.
std::string firstOf(const Environment& environment, std::initializer_list<const char*> variables) {
  for (const char* variable : variables) {
    if (auto value = environment(variable); value && !value->empty()) return *value;
  }
  return {};
}

/// Nothing for the locales without a language.
std::optional<std::string> tagOf(std::string_view localeName) {
  std::string tag = languageTag(localeName);
  if (tag.empty() || tag == "C" || tag == "POSIX") return std::nullopt;
  return tag;
}

}  // namespace

std::string languageTag(std::string_view localeName) {
  std::string tag(localeName.substr(0, localeName.find_first_of(".@")));
  std::ranges::replace(tag, '_', '-');
  return tag;
}

SystemLocale systemLocale(const Environment& environment) {
  SystemLocale locale;
  locale.region = firstOf(environment, {"LC_ALL", "LC_TIME", "LANG"});
  const auto messages = tagOf(firstOf(environment, {"LC_ALL", "LC_MESSAGES", "LANG"}));
  if (!messages) return locale;  // under C the list of LANGUAGE is ignored
  const std::string list = environment("LANGUAGE").value_or("");
  for (std::size_t from = 0; from < list.size();) {
    const std::size_t end = std::min(list.find(':', from), list.size());
    if (auto tag = tagOf(std::string_view(list).substr(from, end - from))) {
      locale.preferredLanguages.push_back(std::move(*tag));
    }
    from = end + 1;
  }
  locale.preferredLanguages.push_back(*messages);
  return locale;
}

}  // namespace brimle
