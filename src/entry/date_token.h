// Date tokens: the " >12/9" at the end of a task's text that sends it to a future day.
//
// Grammar of a token, after trimming and without regard to case:
//   ISO        2026-12-09        a four-digit year, month, day
//   numeric    12/9  12.9.27     separators / . - in any mix; order by the numbers, else by the region
//   names      12 march  mar 12  12 march 2027, in the interface language, then in British English
// A date without a year is its next occurrence after today; one with a year must lie after today.
#pragma once

#include <optional>
#include <string_view>

#include "entry/entry_context.h"

namespace brimle {

/// The day a token names, always later than `context.today`; nothing where it names none.
std::optional<Day> parseDateToken(std::string_view token, const EntryContext& context);

struct DatedText {
  std::string_view text;  ///< what stands before the token, trimmed, never empty; a view into the argument
  Day day;
};

/// Splits a text at its last " >" where a valid token follows and some text stands before it.
std::optional<DatedText> extractDateToken(std::string_view text, const EntryContext& context);

}  // namespace brimle
