#include "base/day.h"

#include <cstdio>

namespace brimle {
namespace {

/// Takes one to `most` digits off the front of `text`; -1 where there are fewer than `least`.
int takeNumber(std::string_view& text, std::size_t least, std::size_t most) {
  std::size_t length = 0;
  int value = 0;
  while (length < most && length < text.size() && text[length] >= '0' && text[length] <= '9') {
    value = value * 10 + (text[length++] - '0');
  }
  if (length < least) return -1;
  text.remove_prefix(length);
  return value;
}

bool takeHyphen(std::string_view& text) {
  if (!text.starts_with('-')) return false;
  text.remove_prefix(1);
  return true;
}

}  // namespace

std::string dayKey(Day day) {
  char key[16];
  std::snprintf(key, sizeof key, "%04d-%02u-%02u", static_cast<int>(day.year()),
                static_cast<unsigned>(day.month()) % 100, static_cast<unsigned>(day.day()) % 100);
  return key;
}

std::optional<Day> parseDay(std::string_view text) {
  const int year = takeNumber(text, 4, 4);
  if (year < 0 || !takeHyphen(text)) return std::nullopt;
  const int month = takeNumber(text, 1, 2);
  if (month < 0 || !takeHyphen(text)) return std::nullopt;
  const int day = takeNumber(text, 1, 2);
  if (day < 0 || !text.empty()) return std::nullopt;
  return makeDay(year, month, day);
}

std::optional<Day> makeDay(long long year, long long month, long long day) {
  if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
  const Day made{std::chrono::year(static_cast<int>(year)), std::chrono::month(static_cast<unsigned>(month)),
                 std::chrono::day(static_cast<unsigned>(day))};
  if (!made.ok()) return std::nullopt;
  return made;
}

}  // namespace brimle
