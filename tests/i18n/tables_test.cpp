// Checks that hold for every language: the tables are data, and a slip in one is seen by nobody who does not
// read that language.
#include "i18n/tables/tables.h"

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "app/core/menu_table.h"
#include "base/text.h"
#include "i18n/counts.h"

namespace brimle {
namespace {

using I18n::Translation;
using Texts = std::vector<std::string_view>;

/// Texts that stay as they are in English because the language has the word.
const std::map<std::string_view, std::set<std::string_view>> kSameAsEnglish = {
    {"de", {"OK", "Standard", "System", "Warm"}},
    {"fr", {"Menu", "Note", "OK", "Standard"}},
    {"id", {"Font", "Margin", "Menu", "OK", "Serif"}},
    {"it", {"File", "Menu", "OK", "Standard"}},
    {"ja", {"OK"}},
    {"nl", {"Compact", "Help", "Later", "Menu", "OK", "Warm"}},
    {"pt", {"Menu", "OK"}},
};

/// Titles that stand beside each other, or as opposites, outside the menu bar.
const std::vector<Texts> kSiblings = {
    {"Tick", "Untick", "Add note", "Highlight", "Remove highlight", "Pin to top", "Unpin", "Repeat",
     "Delete"},
    {"No repeat", "Every day", "Weekdays only"},
    {"Archive", "Past days", "Future days", "Today", "Yesterday", "tomorrow"},
    {"ticked", "pinned", "repeats", "highlighted", "selected"},
};

/// The titles of the menu bar by the menu or submenu that they stand in, but for the languages' own names.
std::map<std::string, std::set<std::string_view>> menuTitles() {
  std::map<std::string, std::set<std::string_view>> titles;
  for (const MenuRow& row : menuRows()) {
    const std::string menu(row.menu), submenu = menu + "/" + std::string(row.submenu);
    if (!row.menu.empty()) titles["bar"].insert(row.menu);
    if (!row.submenu.empty()) titles[menu].insert(row.submenu);
    const bool isLanguage = row.command == Command::setLanguage && row.value != "system";
    if (!row.title.empty() && !isLanguage) titles[row.submenu.empty() ? menu : submenu].insert(row.title);
  }
  return titles;
}

Texts keysOf(std::span<const Translation> rows) {
  Texts keys;
  for (const Translation& row : rows) keys.push_back(row.key);
  return keys;
}

bool isComposed(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  const auto* composer = icu::Normalizer2::getNFCInstance(status);
  return U_SUCCESS(status) && composer->isNormalizedUTF8(text, status);
}

/// The tables of one translated language, which is also the interface language while the test runs.
class Translations : public testing::TestWithParam<std::string_view> {
 protected:
  Translations() { I18n::setLang(std::string(code)); }
  ~Translations() override { I18n::setLang("en"); }

  std::vector<Translation> allRows() const {
    const auto desktop = I18n::desktopTable(code);
    std::vector<Translation> rows(desktop.begin(), desktop.end());
    const auto table = I18n::table(code);
    rows.insert(rows.end(), table.begin(), table.end());
    return rows;
  }

  const std::string_view code = GetParam();
};

TEST_P(Translations, HoldTheSameKeysInTheSameOrder) {
  EXPECT_EQ(keysOf(I18n::table(code)), keysOf(I18n::table("de")));
  EXPECT_EQ(keysOf(I18n::desktopTable(code)), keysOf(I18n::desktopTable("de")));
}

TEST_P(Translations, AreCleanText) {
  for (const auto& [key, text] : allRows()) {
    EXPECT_FALSE(text.empty() || containsNewline(text) || text.find("  ") != text.npos) << key;
    EXPECT_EQ(trimmedLines(text), text) << key;
    EXPECT_TRUE(isValidUtf8(text) && isComposed(text)) << key;
  }
}

TEST_P(Translations, LeaveNothingInEnglishByNeglect) {
  std::set<std::string_view> same;
  for (const auto& [key, text] : allRows()) {
    if (text == key) same.insert(key);
  }
  const auto meant = kSameAsEnglish.find(code);
  EXPECT_EQ(same, meant == kSameAsEnglish.end() ? std::set<std::string_view>() : meant->second);
  EXPECT_NE(I18n::tasksCount(2), "2 tasks");
}

TEST_P(Translations, KeepWhatIsNoWord) {
  const auto count = [](std::string_view text, std::string_view part) {
    int found = 0;
    for (auto at = text.find(part); at != text.npos; at = text.find(part, at + part.size())) ++found;
    return found;
  };
  for (const auto& [key, text] : allRows()) {
    for (const std::string_view kept : {"Brimle", "…", "⇧", "⌥", " · ", "//", "!", "*", "*w", "%1", "%2"}) {
      EXPECT_EQ(count(text, kept), count(key, kept)) << kept << " in " << key;
    }
  }
}

TEST_P(Translations, TellSiblingsApart) {
  for (const Texts& siblings : kSiblings) {
    std::set<std::string> titles;
    for (const auto key : siblings) EXPECT_TRUE(titles.insert(I18n::t(key)).second) << key;
  }
}

TEST_P(Translations, HaveEveryTitleOfTheMenuBarAndTellThoseOfOneMenuApart) {
  const Texts keys = keysOf(allRows());
  for (const auto& [menu, titles] : menuTitles()) {
    std::set<std::string> told;
    for (const auto title : titles) {
      EXPECT_NE(std::ranges::find(keys, title), keys.end()) << title;
      EXPECT_TRUE(told.insert(I18n::t(title)).second) << title;
    }
  }
}

/// Every language of the menu but English, so that none is left out of these checks.
std::vector<std::string_view> translatedCodes() {
  std::vector<std::string_view> codes;
  for (const I18n::Language& language : I18n::languages()) {
    if (language.code != "en") codes.push_back(language.code);
  }
  return codes;
}

INSTANTIATE_TEST_SUITE_P(Languages, Translations, testing::ValuesIn(translatedCodes()),
                         [](const auto& language) {
                           std::string name(language.param);
                           std::erase(name, '-');
                           return name;
                         });

TEST(TranslationTables, HoldNoKeyTwice) {
  Texts keys = keysOf(I18n::table("de"));
  const Texts desktopKeys = keysOf(I18n::desktopTable("de"));
  keys.insert(keys.end(), desktopKeys.begin(), desktopKeys.end());
  EXPECT_EQ(std::set(keys.begin(), keys.end()).size(), keys.size());
}

}  // namespace
}  // namespace brimle
