// Days in words, in the current interface language (I18n::locale).
// ICU formats a day it is given; it never decides which day it is.
#pragma once

#include <string>
#include <string_view>

#include "base/day.h"

namespace brimle {

/// A day in the locale's preferred pattern for a CLDR skeleton such as "EEEEdMMM" (UTS #35).
std::string formatDay(Day day, std::string_view skeleton);

/// The hint of a date token: short weekday, day, short month, year. A key that is no day comes back
/// unchanged.
std::string prettyDay(std::string_view key);
/// The heading of a past day: "Yesterday" in the interface language, else full weekday, day and full month.
std::string pastDayLabel(std::string_view key, Day today);
/// The heading of a future day: short weekday, day, short month.
std::string futureDayLabel(std::string_view key);
/// The date line of today's list: full weekday, day, short month.
std::string dateLine(Day today);

}  // namespace brimle
