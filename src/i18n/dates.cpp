#include "i18n/dates.h"

#include <unicode/gregocal.h>
#include <unicode/smpdtfmt.h>

#include <map>
#include <memory>
#include <utility>

#include "i18n/i18n.h"
#include "i18n/skeleton.h"

namespace brimle {
namespace {

/// The pattern of a skeleton in a locale, kept because making it is the slow part of formatting a day.
const icu::UnicodeString& keptPattern(const std::string& locale, std::string_view skeleton) {
  static std::map<std::pair<std::string, std::string>, icu::UnicodeString> kept;
  const auto [entry, isNew] = kept.try_emplace({locale, std::string(skeleton)});
  if (isNew) entry->second = bestPattern(icu::Locale(locale.c_str()), skeleton);
  return entry->second;
}

/// The calendar of day keys: Gregorian from its first day on, and no time zone, so that no day can shift.
std::unique_ptr<icu::GregorianCalendar> keyCalendar(const icu::Locale& locale, UErrorCode& status) {
  auto calendar = std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), locale, status);
  calendar->setGregorianChange(U_DATE_MIN, status);
  return calendar;
}

UDate midnight(Day day) {
  return static_cast<UDate>(std::chrono::milliseconds(std::chrono::sys_days(day).time_since_epoch()).count());
}

std::string formatKey(std::string_view key, std::string_view skeleton) {
  const auto day = parseDay(key);
  return day ? formatDay(*day, skeleton) : std::string(key);
}

}  // namespace

std::string formatDay(Day day, std::string_view skeleton) {
  if (!day.ok()) return dayKey(day);
  const std::string name(I18n::locale());
  const icu::Locale locale(name.c_str());
  UErrorCode status = U_ZERO_ERROR;
  icu::SimpleDateFormat format(keptPattern(name, skeleton), locale, status);
  auto calendar = keyCalendar(locale, status);
  if (U_FAILURE(status)) return dayKey(day);
  format.adoptCalendar(calendar.release());
  icu::UnicodeString text;
  format.format(midnight(day), text);
  std::string bytes;
  return text.toUTF8String(bytes);
}

std::string prettyDay(std::string_view key) {
  return formatKey(key, "EEEdMMMyyyy");
}

std::string pastDayLabel(std::string_view key, Day today) {
  const auto day = parseDay(key);
  const bool isYesterday =
      day && std::chrono::sys_days(*day) + std::chrono::days(1) == std::chrono::sys_days(today);
  return isYesterday ? I18n::t("Yesterday") : formatKey(key, "EEEEdMMMM");
}

std::string futureDayLabel(std::string_view key) {
  return formatKey(key, "EEEdMMM");
}

std::string dateLine(Day today) {
  return formatDay(today, "EEEEdMMM");
}

}  // namespace brimle
