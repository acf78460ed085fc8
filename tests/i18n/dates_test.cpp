// Days and counts in the words of the interface language.
#include "i18n/dates.h"
#include "i18n/counts.h"

#include <gtest/gtest.h>

#include "i18n/i18n.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

constexpr Day kToday = 2026y / 10 / 1;

/// CLDR releases differ over the comma after a British weekday.
std::string withoutCommas(std::string text) {
  std::erase(text, ',');
  return text;
}

struct DaysInWords : testing::Test {
  ~DaysInWords() override { I18n::setLang("en"); }
};

TEST_F(DaysInWords, FollowTheInterfaceLanguage) {
  const std::tuple<const char*, const char*, const char*, const char*, const char*> cases[] = {
      {"en", "Sun, 7 Jun 2026", "Sunday, 7 June", "Sun, 7 Jun", "Sunday, 7 Jun"},
      {"de", "So., 7. Juni 2026", "Sonntag, 7. Juni", "So., 7. Juni", "Sonntag, 7. Juni"},
      {"ja", "2026年6月7日(日)", "6月7日日曜日", "6月7日(日)", "6月7日日曜日"},
      {"xx", "Sun, 7 Jun 2026", "Sunday, 7 June", "Sun, 7 Jun", "Sunday, 7 Jun"},
  };
  for (const auto& [code, pretty, past, future, line] : cases) {
    I18n::setLang(code);
    EXPECT_EQ(withoutCommas(prettyDay("2026-06-07")), withoutCommas(pretty));
    EXPECT_EQ(withoutCommas(pastDayLabel("2026-06-07", kToday)), withoutCommas(past));
    EXPECT_EQ(withoutCommas(futureDayLabel("2026-06-07")), withoutCommas(future));
    EXPECT_EQ(withoutCommas(dateLine(2026y / 6 / 7)), withoutCommas(line));
  }
}

TEST_F(DaysInWords, HaveAWordForYesterdayOnly) {
  const std::tuple<const char*, Day, const char*> cases[] = {
      {"2026-09-30", kToday, "Gestern"},
      {"2024-02-29", 2024y / 3 / 1, "Gestern"},
      {"2025-12-31", 2026y / 1 / 1, "Gestern"},
      {"2026-09-29", kToday, "Dienstag, 29. September"},
      {"2026-10-01", kToday, "Donnerstag, 1. Oktober"},
      {"2025-09-30", kToday, "Dienstag, 30. September"},
  };
  I18n::setLang("de");
  for (const auto& [key, today, label] : cases) EXPECT_EQ(pastDayLabel(key, today), label);
}

TEST_F(DaysInWords, KeysThatAreNoDayComeBackUnchanged) {
  for (const char* key : {"", "2024-13-40", "2026-02-29", "tomorrow", "2026-06-07 ", "0000-01-01", "\xff"}) {
    EXPECT_EQ(prettyDay(key), key);
    EXPECT_EQ(futureDayLabel(key), key);
    EXPECT_EQ(pastDayLabel(key, kToday), key);
  }
  EXPECT_EQ(formatDay(2026y / 2 / 30, "EEEEdMMM"), "2026-02-30");
}

TEST_F(DaysInWords, AreGregorianInEveryYear) {
  const std::pair<const char*, const char*> cases[] = {
      {"0001-01-01", "Monday, 1 January"},
      {"1500-03-01", "Thursday, 1 March"},
      {"1582-10-10", "Sunday, 10 October"},
      {"9999-12-31", "Friday, 31 December"},
  };
  for (const auto& [key, label] : cases) {
    EXPECT_EQ(withoutCommas(pastDayLabel(key, kToday)), withoutCommas(label));
  }
}

TEST_F(DaysInWords, OnlyExactlyOneIsSingularAndDigitsAreNotGrouped) {
  EXPECT_EQ(I18n::tasksCount(1), "1 task");
  EXPECT_EQ(I18n::tasksCount(-1), "-1 tasks");
  EXPECT_EQ(I18n::tasksCount(1234567), "1234567 tasks");
  I18n::setLang("fr");
  EXPECT_EQ(I18n::tasksCount(1) + I18n::tasksCount(0), "1 tâche0 tâches");
  I18n::setLang("xx");
  EXPECT_EQ(I18n::tasksCount(2), "2 tasks");
}

}  // namespace
}  // namespace brimle
