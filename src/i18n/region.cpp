#include "i18n/region.h"

#include <unicode/calendar.h>
#include <unicode/locid.h>

#include <algorithm>
#include <memory>
#include <string>

#include "i18n/skeleton.h"
#include "platform/system_locale.h"

namespace brimle {
namespace {

/// Whether ICU has data for the locale's language. For any other it would answer with those of the process's
/// own locale.
bool knowsLanguage(const icu::Locale& locale) {
  int32_t count = 0;
  const icu::Locale* available = icu::Locale::getAvailableLocales(count);
  return std::any_of(available, available + count, [&](const icu::Locale& known) {
    return std::string_view(known.getLanguage()) == locale.getLanguage();
  });
}

bool writesMonthFirst(const icu::Locale& locale) {
  if (!knowsLanguage(locale)) return false;
  const icu::UnicodeString pattern = bestPattern(locale, "dM");
  const int32_t month = pattern.indexOf(u'M');
  return month >= 0 && month < pattern.indexOf(u'd');
}

std::bitset<7> weekendOf(const icu::Locale& locale, std::bitset<7> fallback) {
  UErrorCode status = U_ZERO_ERROR;
  // Which days are a weekend depends on no time zone; naming one spares ICU the search for the system's.
  const std::unique_ptr<icu::Calendar> calendar(
      icu::Calendar::createInstance(*icu::TimeZone::getGMT(), locale, status));
  if (U_FAILURE(status)) return fallback;
  std::bitset<7> weekend;
  for (int day = 0; day < 7; ++day) {
    const auto dayOfWeek = static_cast<UCalendarDaysOfWeek>(UCAL_SUNDAY + day);
    // A day that the weekend takes only a part of is no working day either.
    weekend[static_cast<std::size_t>(day)] = calendar->getDayOfWeekType(dayOfWeek, status) != UCAL_WEEKDAY;
  }
  return U_SUCCESS(status) ? weekend : fallback;
}

}  // namespace

bool Region::isWeekend(Day day) const {
  return weekend[std::chrono::weekday(std::chrono::sys_days(day)).c_encoding()];
}

Region regionOf(std::string_view localeName) {
  Region region;
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale locale = icu::Locale::forLanguageTag(languageTag(localeName), status);
  locale.canonicalize(status);           // "tl_PH" is a name in use; the data are under "fil_PH"
  if (U_FAILURE(status)) return region;  // "C", for one, is no language tag
  region.monthFirst = writesMonthFirst(locale);
  region.weekend = weekendOf(locale, region.weekend);
  return region;
}

}  // namespace brimle
