// Days of the calendar and their keys.
//
// A day key is a day written "yyyy-MM-dd": Gregorian, ASCII digits, in every locale. Keys compare as plain
// strings, and that order is the calendar's. Example: dayKey(2026y/6/15) is "2026-06-15".
// Nothing here knows which day it is: that is asked of the Time port.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace brimle {

/// A day of the proleptic Gregorian calendar, without a time or a zone. Years run from 1 to 9999.
using Day = std::chrono::year_month_day;

/// The key of a valid day, ten characters.
std::string dayKey(Day day);

/// The day a text names: a four-digit year, a month and a day of one or two digits, joined by hyphens.
/// Nothing where the text has another form or names no day of the calendar.
std::optional<Day> parseDay(std::string_view text);

/// A day built from numbers; nothing where the calendar has no such day or the year is not 1 to 9999.
std::optional<Day> makeDay(long long year, long long month, long long day);

}  // namespace brimle
