// The card of shortcuts, in every language and region.
#include "views/shortcuts_view.h"

#include <gtest/gtest.h>

#include "i18n/i18n.h"

namespace brimle {
namespace {

TEST(ShortcutsCard, SpeaksEveryLanguageAndKeepsItsKeysButSpaceAndTheDate) {
  const auto english = shortcutsCard(regionOf("en_US"));
  for (const char* language : {"de", "ja", "fr"}) {
    I18n::setLang(language);
    const auto card = shortcutsCard(regionOf("en_GB"));
    ASSERT_EQ(card.size(), english.size());
    for (std::size_t section = 0; section < card.size(); ++section) {
      for (std::size_t row = 0; row < english[section].rows.size(); ++row) {
        const auto& [keys, description, hint] = english[section].rows[row];
        EXPECT_NE(card[section].rows.at(row).description, description) << language;
        EXPECT_EQ(card[section].rows[row].keys, keys == "> 9/22" ? "> 22/9" : I18n::t(keys));
      }
    }
  }
  I18n::setLang("en");
}

}  // namespace
}  // namespace brimle
