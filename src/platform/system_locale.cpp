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

/// "zh_TW.UTF-8@radical" as "zh-TW"; nothing for the locales without a language.
std::optional<std::string> tagOf(std::string_view name) {
  name = name.substr(0, name.find_first_of(".@"));
  if (name.empty() || name == "C" || name == "POSIX") return std::nullopt;
  std::string tag(name);
  std::replace(tag.begin(), tag.end(), '_', '-');
  return tag;
}

}  // namespace

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
