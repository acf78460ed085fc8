#include "views/shortcuts_view.h"

#include <gtest/gtest.h>

#include <array>

#include "i18n/i18n.h"

namespace brimle {
namespace {

TEST(ShortcutsCard, SpeaksEveryLanguageAndKeepsItsKeysButSpaceAndTheDate) {
  const auto english = shortcutsCard(regionOf("en_US"));
  EXPECT_EQ(english.at(1).rows.at(3).keys, "> 9/22");
  for (const char* language : {"en", "de", "ja", "fr"}) {
    I18n::setLang(language);
    const auto card = shortcutsCard(regionOf("en_GB"));
    ASSERT_EQ(card.size(), 3u);
    for (std::size_t section = 0; section < 3; ++section) {
      EXPECT_EQ(card[section].title, I18n::t(english[section].title));
      ASSERT_EQ(card[section].rows.size(), (std::array{4u, 7u, 8u}[section]));
      for (std::size_t row = 0; row < card[section].rows.size(); ++row) {
        const auto& [keys, description, hint] = english[section].rows[row];
        EXPECT_EQ(card[section].rows[row].description, I18n::t(description));
        const bool isTranslated = language == std::string("en") || I18n::t(description) != description;
        EXPECT_TRUE(isTranslated) << description << " in " << language;
        EXPECT_EQ(card[section].rows[row].keys, keys == "> 9/22" ? "> 22/9" : I18n::t(keys));
      }
    }
  }
  I18n::setLang("en");
}

}  // namespace
}  // namespace brimle
