// Checks that hold for every language: the tables are data, and a slip in one is seen by nobody who does not
// read that language.
#include "i18n/tables/tables.h"

#include <gtest/gtest.h>
#include <unicode/normalizer2.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/text.h"

namespace brimle {
namespace {

using I18n::Translation;
using Texts = std::vector<std::string_view>;

const Texts kKeys = {
    "Add a task",
    "all done",
    "Archive",
    "tomorrow",
    "Tick",
    "Untick",
    "Add note",
    "Edit note",
    "Highlight",
    "Remove highlight",
    "Pin to top",
    "Unpin",
    "Move to tomorrow",
    "Move to today",
    "Repeat",
    "No repeat",
    "Every day",
    "Weekdays only",
    "Delete",
    "Bring back to today",
    "Past days will collect here at midnight.",
    "Yesterday",
    "M–F",
    "Repeats every day",
    "Repeats Mon–Fri",
    "Past days",
    "Back to today",
    "Double-click to collapse",
    "Quit Brimle",
    "File",
    "New Task",
    "Copy Day as Text",
    "Paste Clipboard as Tasks",
    "Edit",
    "Undo",
    "Redo",
    "Cut",
    "Copy",
    "Paste",
    "Select All",
    "View",
    "System",
    "Light",
    "Dark",
    "Font",
    "Serif",
    "Rounded",
    "Text Size",
    "Small",
    "Medium",
    "Large",
    "Window",
    "Minimise",
    "Compact",
    "Regular",
    "Mega",
    "Language",
    "Paper",
    "Warm",
    "White",
    "Margin",
    "Reset to Defaults",
    "Adding tasks",
    "About Brimle",
    "Check for Updates…",
    "Send Feedback",
    "Indent for a note",
    "Send to a day",
    "Arrive pinned",
    "Pick a date",
    "Future days",
    "On your list today.",
    "Send",
    "Cancel",
    "Notes & markers",
    "Working the list",
    "Standard",
    "Narrow",
    "Flush",
    "Search archive",
    "No matches",
    "Today",
    "Start at Login",
    "Tick this task to see it filed away",
    "Drag me to the top",
    "Double-click a task to edit it",
    "Right-click a task for everything else",
    "Notes sit underneath — try typing: milk // eggs // bread",
    "Help",
    "Shortcuts",
    "New line",
    "Another note",
    "Quick add from anywhere",
    "Walk the notes",
    "Move task",
    "Space",
    "Return adds · ⇧Return for another line · ⌥Return for tomorrow · \"task // note\" attaches a note · "
    "trailing ! pins, * repeats, *w repeats Mon–Fri"};

const Texts kDesktopKeys = {"Close",
                            "Menu",
                            "ticked",
                            "pinned",
                            "repeats",
                            "highlighted",
                            "selected",
                            "Note",
                            "Task list",
                            "Brimle is already open.",
                            "You're up to date",
                            "A new version is available",
                            "Version %1 is available. You have %2.",
                            "The update check failed",
                            "Updates are not configured in this build.",
                            "Updates come from your package manager.",
                            "You have version %1.",
                            "The update information could not be loaded.",
                            "The signature of the update information is not valid.",
                            "The update information has errors.",
                            "Download",
                            "Later",
                            "OK"};

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

/// Titles that stand beside each other, in a menu where an item is found by its title or as opposites.
const std::vector<Texts> kSiblings = {
    {"File", "Edit", "View", "Window", "Help"},
    {"File", "Archive"},
    {"System", "Light", "Dark", "Paper", "Font", "Text Size", "Margin", "Language", "Reset to Defaults"},
    {"Warm", "White"},
    {"System", "Serif", "Rounded"},
    {"Small", "Medium", "Large"},
    {"Standard", "Narrow", "Flush"},
    {"Compact", "Regular", "Large"},
    {"About Brimle", "Check for Updates…", "Start at Login", "Quit Brimle"},
    {"Undo", "Redo", "Cut", "Copy", "Paste", "Select All"},
    {"Tick", "Untick", "Add note", "Highlight", "Remove highlight", "Pin to top", "Unpin", "Move to tomorrow",
     "Repeat", "Delete"},
    {"No repeat", "Every day", "Weekdays only"},
    {"Past days", "Future days", "Today", "Yesterday", "tomorrow"},
    {"ticked", "pinned", "repeats", "highlighted", "selected"},
};

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

TEST_P(Translations, HoldExactlyTheKeysInTheirOrder) {
  EXPECT_EQ(keysOf(I18n::table(code)), kKeys);
  EXPECT_EQ(keysOf(I18n::desktopTable(code)), kDesktopKeys);
}

TEST_P(Translations, AreCleanText) {
  for (const auto& [key, text] : allRows()) {
    EXPECT_FALSE(text.empty()) << key;
    EXPECT_EQ(trimmedLines(text), text) << key;
    EXPECT_FALSE(containsNewline(text)) << key;
    EXPECT_TRUE(isValidUtf8(text)) << key;
    EXPECT_TRUE(isComposed(text)) << key;
    EXPECT_EQ(text.find("  "), text.npos) << key;
  }
}

TEST_P(Translations, LeaveNothingInEnglishByNeglect) {
  std::set<std::string_view> same;
  for (const auto& [key, text] : allRows()) {
    if (text == key) same.insert(key);
  }
  const auto meant = kSameAsEnglish.find(code);
  EXPECT_EQ(same, meant == kSameAsEnglish.end() ? std::set<std::string_view>() : meant->second);
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

TEST(TranslationTables, AreEmptyForEnglishAndUnknownCodes) {
  for (const char* code : {"en", "system", "zh", ""}) {
    EXPECT_TRUE(I18n::table(code).empty());
    EXPECT_TRUE(I18n::desktopTable(code).empty());
  }
}

TEST(TranslationTables, ShareNoKeyBetweenThem) {
  std::set<std::string_view> keys(kKeys.begin(), kKeys.end());
  keys.insert(kDesktopKeys.begin(), kDesktopKeys.end());
  EXPECT_EQ(keys.size(), kKeys.size() + kDesktopKeys.size());
}

TEST(TranslationTables, HoldTheTextsThatAreSettled) {
  const struct {
    std::string_view code;
    std::string_view key;
    std::string_view text;
  } cases[] = {
      {"es", "Add a task", "Añadir una tarea"},
      {"es", "all done", "todo hecho"},
      {"es", "M–F", "L–V"},
      {"es", "Yesterday", "Ayer"},
      {"es", "Quit Brimle", "Salir de Brimle"},
      {"es", "Minimise", "Minimizar"},
      {"es", "Check for Updates…", "Buscar actualizaciones…"},
      {"de", "Add a task", "Aufgabe hinzufügen"},
      {"de", "all done", "alles erledigt"},
      {"de", "M–F", "Mo–Fr"},
      {"de", "Yesterday", "Gestern"},
      {"de", "Quit Brimle", "Brimle beenden"},
      {"de", "Minimise", "Im Dock ablegen"},
      {"de", "Check for Updates…", "Nach Updates suchen…"},
      {"ja", "Add a task", "タスクを追加"},
      {"ja", "all done", "全部完了"},
      {"ja", "M–F", "月–金"},
      {"ja", "Yesterday", "昨日"},
      {"ja", "Quit Brimle", "Brimleを終了"},
      {"ja", "Minimise", "しまう"},
      {"ja", "Check for Updates…", "アップデートを確認…"},
      {"zh-Hant", "Add a task", "加入任務"},
      {"zh-Hant", "all done", "全部完成"},
      {"zh-Hant", "M–F", "一–五"},
      {"zh-Hant", "Yesterday", "昨天"},
      {"zh-Hant", "Quit Brimle", "結束 Brimle"},
      {"zh-Hant", "Minimise", "縮到最小"},
      {"zh-Hant", "Check for Updates…", "檢查更新…"},
      {"it", "M–F", "Lun–Ven"},
      {"pt", "M–F", "Seg–Sex"},
      {"zh-Hans", "M–F", "一–五"},
  };
  for (const auto& [code, key, text] : cases) {
    I18n::setLang(std::string(code));
    EXPECT_EQ(I18n::t(key), text) << code;
  }
  I18n::setLang("en");
}

}  // namespace
}  // namespace brimle
