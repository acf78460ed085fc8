#include "platform/simulated/simulated_time.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <utility>

#include "platform/civil.h"

namespace brimle {
namespace {

constexpr int kMostCallsAtOnce = 100'000;
constexpr Seconds kLongest = std::chrono::years(1000);

[[noreturn]] void fail(const char* why, const std::string& what) {
  std::fprintf(stderr, "SimulatedTime: %s%s\n", why, what.c_str());
  std::abort();
}

void putZone(const std::optional<std::string>& zone) {
  zone ? ::setenv("TZ", zone->c_str(), 1) : ::unsetenv("TZ");
  ::tzset();
}

std::optional<std::string> presentZone() {
  const char* zone = std::getenv("TZ");
  return zone ? std::optional<std::string>(zone) : std::nullopt;
}

/// A duration in whole microseconds, none where it is negative or no number.
std::chrono::microseconds whole(Seconds duration) {
  if (!(duration > Seconds(0))) return {};
  return std::chrono::round<std::chrono::microseconds>(std::min(duration, kLongest));
}

}  // namespace

SimulatedTime::SimulatedTime(std::string_view local, const std::string& zone) : formerZone_(presentZone()) {
  putZone(zone);
  start_ = at(local);
  meetDay();
}

SimulatedTime::~SimulatedTime() {
  putZone(formerZone_);
}

Day SimulatedTime::localDay(Instant instant) const {
  return civilDay(instant);
}

void SimulatedTime::after(Seconds delay, std::function<void()> action) {
  calls_.emplace(elapsed_ + whole(delay), std::move(action));
}

Subscription SimulatedTime::onDayChange(std::function<void()> observer) {
  return dayChanged_.subscribe(std::move(observer));
}

Subscription SimulatedTime::onWake(std::function<void()> observer) {
  return woke_.subscribe(std::move(observer));
}

Instant SimulatedTime::at(std::string_view local) const {
  const std::string text(local);
  std::tm time{};
  int end = 0;
  std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d%n", &time.tm_year, &time.tm_mon, &time.tm_mday,
              &time.tm_hour, &time.tm_min, &end);
  if (end == 0 || text.size() != static_cast<std::size_t>(end) ||
      !makeDay(time.tm_year, time.tm_mon, time.tm_mday) || time.tm_hour < 0 || time.tm_hour > 23 ||
      time.tm_min < 0 || time.tm_min > 59) {
    fail("not a local time: ", text);
  }
  time.tm_year -= 1900;
  time.tm_mon -= 1;
  time.tm_isdst = -1;
  return Instant(std::chrono::seconds(std::mktime(&time)));
}

void SimulatedTime::advance(Seconds duration) {
  runDue(elapsed_ + whole(duration));
}

void SimulatedTime::sleep(Seconds duration) {
  elapsed_ += whole(duration);
  runDue(elapsed_);
  wake();
}

void SimulatedTime::setClock(Instant instant) {
  start_ = instant - elapsed_;
  meetDay();
}

void SimulatedTime::setZone(const std::string& zone) {
  putZone(zone);
  meetDay();
}

void SimulatedTime::runDue(Elapsed end) {
  int callsAtOnce = 0;
  while (true) {
    const Elapsed midnight = dayEnd_ - start_;
    const bool isCall = !calls_.empty() && calls_.begin()->first < midnight;
    const Elapsed due = isCall ? calls_.begin()->first : midnight;
    if (due > end) break;
    if (due > elapsed_) {
      elapsed_ = due;
      callsAtOnce = 0;
    }
    if (++callsAtOnce > kMostCallsAtOnce) fail("calls keep asking for calls at ", dayKey(day_));
    if (isCall) {
      const auto action = std::move(calls_.extract(calls_.begin()).mapped());
      action();
    } else {
      meetDay();
    }
  }
  elapsed_ = std::max(elapsed_, end);  // a call may itself have let time pass
}

/// Takes in which day it is, and tells the observers where it is another one than before.
void SimulatedTime::meetDay() {
  const Day before = std::exchange(day_, today());
  dayEnd_ = startOfDay(std::chrono::sys_days(day_) + std::chrono::days(1));
  if (day_ != before) dayChanged_.notify();
}

}  // namespace brimle
