// What of the environment is the locale.
#include "platform/system_locale.h"

#include <gtest/gtest.h>

#include "model/notation.h"

namespace brimle {
namespace {

TEST(SystemLocale, IsReadFromTheEnvironment) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      // the languages in their order
      {"LANG=de_DE.UTF-8", "de_DE.UTF-8", "de-DE"},
      {"LANG=sr_RS@latin", "sr_RS@latin", "sr-RS"},
      {"LC_ALL=en_US LC_TIME=de_DE LC_MESSAGES=fr_FR LANG=it_IT", "en_US", "en-US"},
      {"LC_TIME=de_DE LC_MESSAGES=fr_FR LANG=it_IT", "de_DE", "fr-FR"},
      {"LC_ALL= LC_TIME= LC_MESSAGES= LANG=nl_NL", "nl_NL", "nl-NL"},  // empty counts as not set
      {"LANG=en_GB.UTF-8 LANGUAGE=zh_TW:zh:en", "en_GB.UTF-8", "zh-TW zh en en-GB"},
      {"LANG=en_GB LANGUAGE=:C:fr_CA.UTF-8::", "en_GB", "fr-CA en-GB"},
      {"LANG=C LANGUAGE=de", "C", ""},
      {"LC_ALL=POSIX LANG=de_DE LANGUAGE=de", "POSIX", ""},
      {"LC_MESSAGES=C.UTF-8 LANG=de_DE LANGUAGE=de", "de_DE", ""},
      {"LANGUAGE=de", "", ""},
  };
  for (const auto& [environment, region, languages] : cases) {
    const SystemLocale locale = systemLocale([&](const char* variable) -> std::optional<std::string> {
      for (const auto& setting : split(environment, ' ')) {
        if (setting.starts_with(std::string(variable) + "=")) return setting.substr(setting.find('=') + 1);
      }
      return std::nullopt;
    });
    EXPECT_EQ(locale.region, region) << environment;
    EXPECT_EQ(locale.preferredLanguages, split(languages, ' ')) << environment;
  }
}

}  // namespace
}  // namespace brimle
