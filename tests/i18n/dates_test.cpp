// Days and counts in the words of the interface language.
#include "i18n/dates.h"

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
  const struct {
    const char* code;
    const char* pretty;
    const char* past;
    const char* future;
    const char* line;
  } cases[] = {
      {"en", "Sun, 7 Jun 2026", "Sunday, 7 June", "Sun, 7 Jun", "Sunday, 7 Jun"},
      {"de", "So., 7. Juni 2026", "Sonntag, 7. Juni", "So., 7. Juni", "Sonntag, 7. Juni"},
      {"es", "dom, 7 jun 2026", "domingo, 7 de junio", "dom, 7 jun", "domingo, 7 jun"},
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
  const struct {
    const char* key;
    Day today;
    const char* label;
  } cases[] = {
      {"2026-09-30", kToday, "Gestern"},
      {"2024-02-29", 2024y / 3 / 1, "Gestern"},
      {"2025-12-31", 2026y / 1 / 1, "Gestern"},
      {"2026-09-29", kToday, "Dienstag, 29. September"},
      {"2026-10-01", kToday, "Donnerstag, 1. Oktober"},
      {"2026-10-02", kToday, "Freitag, 2. Oktober"},
      {"2025-09-30", kToday, "Dienstag, 30. September"},
  };
  I18n::setLang("de");
  for (const auto& [key, today, label] : cases) EXPECT_EQ(pastDayLabel(key, today), label);
  EXPECT_EQ(prettyDay("2026-12-31"), "Do., 31. Dez. 2026");
  EXPECT_EQ(futureDayLabel("2026-12-31"), "Do., 31. Dez.");
}

TEST_F(DaysInWords, YesterdayIsTranslatedInEveryLanguage) {
  for (const I18n::Language& language : I18n::languages()) {
    I18n::setLang(std::string(language.code));
    EXPECT_EQ(pastDayLabel("2026-09-30", kToday), I18n::t("Yesterday")) << language.code;
    EXPECT_NE(futureDayLabel("2026-09-30"), I18n::t("Yesterday")) << language.code;
  }
}

TEST_F(DaysInWords, KeysThatAreNoDayComeBackUnchanged) {
  for (const char* key : {"", "2024-13-40", "2026-02-29", "tomorrow", "2026-06-07 ", "0000-01-01", "\xff"}) {
    EXPECT_EQ(prettyDay(key), key);
    EXPECT_EQ(futureDayLabel(key), key);
    EXPECT_EQ(pastDayLabel(key, kToday), key);
  }
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

TEST_F(DaysInWords, ADayThatDoesNotExistIsShownAsItsKey) {
  EXPECT_EQ(formatDay(2026y / 2 / 30, "EEEEdMMM"), "2026-02-30");
  EXPECT_EQ(formatDay(2026y / 14 / 1, "EEEEdMMM"), "2026-14-01");
}

TEST_F(DaysInWords, CountsTakeEachLanguagesWord) {
  const struct {
    const char* code;
    const char* one;
    const char* two;
  } cases[] = {
      {"en", "1 task", "2 tasks"},
      {"es", "1 tarea", "2 tareas"},
      {"de", "1 Aufgabe", "2 Aufgaben"},
      {"fr", "1 tâche", "2 tâches"},
      {"it", "1 attività", "2 attività"},
      {"nl", "1 taak", "2 taken"},
      {"pt", "1 tarefa", "2 tarefas"},
      {"id", "1 tugas", "2 tugas"},
      {"ja", "1件", "2件"},
      {"ko", "1개", "2개"},
      {"zh-Hans", "1项", "2项"},
      {"zh-Hant", "1項", "2項"},
      {"xx", "1 task", "2 tasks"},
  };
  for (const auto& [code, one, two] : cases) {
    I18n::setLang(code);
    EXPECT_EQ(I18n::tasksCount(1), one);
    EXPECT_EQ(I18n::tasksCount(2), two);
  }
}

TEST_F(DaysInWords, NoLanguageCountsInEnglishByNeglect) {
  for (const I18n::Language& language : I18n::languages()) {
    I18n::setLang(std::string(language.code));
    EXPECT_EQ(I18n::tasksCount(2) == "2 tasks", language.code == "en") << language.code;
  }
}

TEST_F(DaysInWords, OnlyExactlyOneIsSingularAndDigitsAreNotGrouped) {
  EXPECT_EQ(I18n::tasksCount(0), "0 tasks");
  EXPECT_EQ(I18n::tasksCount(-1), "-1 tasks");
  EXPECT_EQ(I18n::tasksCount(1000), "1000 tasks");
  EXPECT_EQ(I18n::tasksCount(1234567), "1234567 tasks");
}

}  // namespace
}  // namespace brimle
