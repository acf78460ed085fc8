#include "platform/civil.h"

#include <ctime>

namespace brimle {
namespace {

std::tm localTime(std::time_t seconds) {
  std::tm local{};
  localtime_r(&seconds, &local);
  return local;
}

std::tm localTime(Instant instant) {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch().count();
  return localTime(static_cast<std::time_t>(seconds));
}

Day dayOf(const std::tm& local) {
  return Day{std::chrono::year(local.tm_year + 1900),
             std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)),
             std::chrono::day(static_cast<unsigned>(local.tm_mday))};
}

}  // namespace

Day civilDay(Instant instant) {
  return dayOf(localTime(instant));
}

int civilHour(Instant instant) {
  return localTime(instant).tm_hour;
}

Instant startOfDay(Day day) {
  const auto instantOf = [](std::time_t seconds) { return Instant(std::chrono::seconds(seconds)); };
  std::tm midnight{};
  midnight.tm_year = static_cast<int>(day.year()) - 1900;
  midnight.tm_mon = static_cast<int>(static_cast<unsigned>(day.month())) - 1;
  midnight.tm_mday = static_cast<int>(static_cast<unsigned>(day.day()));
  midnight.tm_isdst = -1;
  // Where midnight is skipped or comes twice the answer may be off by the size of the change: the day's first
  // second is found by halving, since within two days of midnight "has the day begun?" changes once.
  const std::time_t guess = std::mktime(&midnight);
  std::time_t before = guess - 26 * 3600;
  std::time_t begun = guess + 26 * 3600;
  while (begun - before > 1) {
    const std::time_t middle = before + (begun - before) / 2;
    (dayOf(localTime(middle)) < day ? before : begun) = middle;
  }
  return instantOf(begun);
}

}  // namespace brimle
