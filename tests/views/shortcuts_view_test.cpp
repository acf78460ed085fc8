// The card of shortcuts, in every language and region.
#include "views/shortcuts_view.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>

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
        const auto& [keys, description, names] = english[section].rows[row];
        EXPECT_NE(card[section].rows.at(row).description, description) << language;
        EXPECT_EQ(card[section].rows[row].keys, keys == "> 9/22" ? "> 22/9" : I18n::t(keys));
        EXPECT_EQ(card[section].rows[row].names, names);
      }
    }
  }
  I18n::setLang("en");
}

TEST(ShortcutsCard, NamesTheKeysThatItDraws) {
  const std::map<std::string, std::string> drawn = {{"⌘", "Ctrl+"},  {"⌥", "Alt+"}, {"⇧", "Shift+"},
                                                    {"⏎", "Return"}, {"⇥", "Tab"},  {"⌫", "Backspace"},
                                                    {"↑", "Up"},     {"↓", "Down"}};
  for (const auto& section : shortcutsCard(regionOf("en_GB"), "Alt+Ctrl+T")) {
    for (const auto& [keys, description, names] : section.rows) {
      bool isKey = false;
      for (const auto& [glyph, name] : drawn) {
        if (keys.find(glyph) == keys.npos) continue;
        isKey = true;
        EXPECT_NE(names.find(name), names.npos) << keys << ": " << names;
      }
      EXPECT_EQ(names.empty(), !isKey) << keys;
      if (isKey && std::isalpha(static_cast<unsigned char>(keys.back()))) {
        EXPECT_EQ(names.back(), keys.back()) << keys;
      }
    }
  }
}

}  // namespace
}  // namespace brimle
