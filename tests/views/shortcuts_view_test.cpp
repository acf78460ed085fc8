#include "views/shortcuts_view.h"

#include <gtest/gtest.h>

#include "i18n/i18n.h"

namespace brimle {
namespace {

/// All that the card says but the date, which comes apart.
std::vector<std::string> texts(const Region& region, std::string& date) {
  std::vector<std::string> texts;
  for (const auto& [title, rows] : shortcutsCard(region)) {
    texts.push_back(title);
    for (const auto& [keys, description, hint] : rows) {
      texts.push_back(description);
      (keys.starts_with("> ") ? date : texts.emplace_back()) = keys;
    }
  }
  return texts;
}

TEST(ShortcutsCard, SpeaksEveryLanguageAndKeepsItsKeys) {
  std::string american, british;
  const auto english = texts(regionOf("en_US"), american);
  EXPECT_EQ(american, "> 9/22");
  EXPECT_EQ(english.size(), 3u + 19 + 18);
  for (const I18n::Language& language : I18n::languages()) {
    I18n::setLang(std::string(language.code));
    const auto card = texts(regionOf("en_GB"), british);
    EXPECT_EQ(british, "> 22/9");
    std::size_t same = 0;
    for (std::size_t at = 0; at < english.size(); ++at) {
      EXPECT_EQ(card.at(at), I18n::t(english[at]));
      same += card[at] == english[at];
    }
    // The keys but Space, and descriptions that a language took over.
    EXPECT_LE(same, language.code == "en" ? 40u : 19u) << language.code;
  }
  I18n::setLang("en");
}

}  // namespace
}  // namespace brimle
